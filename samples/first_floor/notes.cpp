#include "samples/first_floor/plan.h"

namespace samples {
namespace {

constexpr std::u16string_view kNotes =
    u"{\\fArial|b1|i0|c0|p34;\\H1.6x;\\C150;Notes}\\P"
    u"\\pxi-3,l3,t3;1.\tAll dimensions are in millimetres and must be checked on site before work begins.\\P"
    u"2.\tDo not scale from this drawing. If in doubt, {\\C1;ask}.\\P"
    u"3.\tPartition walls: metal studs 75, plasterboard 2 \u00D7 12.5 on both sides, {\\fTimes New "
    u"Roman|b0|i1|c0|p18;"
    u"mineral wool 60}.\\P"
    u"4.\tScreed 50 {\\H0.7x;\\S+3^-2;} mm on insulation 40 mm; threads 1{\\H0.7x;\\S1#2;}\" and "
    u"{\\H0.7x;\\S3/4;}\".\\P"
    u"5.\tLettering on doors in {\\Fsimplex.shx|c0;simplex}, capitals {\\Lunderlined\\l}, {\\Ocrossed "
    u"above\\o} "
    u"or {\\H0.7x;small}.\\P"
    u"\\pxi0,l0,tz;\\P"
    u"\\pxqc;{\\C3;\u2014 centred: mind the step \u2014}\\P"
    u"\\pxqr;set to the right, 21 %%dC\\P"
    u"\\pxqj;Justified lines reach from one edge of the text to the other, which looks calm as long as the "
    u"words are "
    u"short and the column is wide.";

constexpr std::u16string_view kSchedule =
    u"{\\fArial|b1|i0|c0|p34;Doors}\\P"
    u"\\pxt8,c20,r34;{\\C8;Mark\tRoom\tSize\tNumber}\\P"
    u"D1\tOffices\t900 \u00D7 2100\t4\\P"
    u"D2\tKitchen\t900 \u00D7 2100\t1\\P"
    u"D3\tArchive, EI 30\t900 \u00D7 2100\t1\\P"
    u"D4\tEntrance\t1000 \u00D7 2250\t1";

constexpr std::u16string_view kGeneral =
    u"{\\fArial|b1|i0|c0|p34;\\H1.3x;General conditions}\\P"
    u"The contractor shall visit the site, examine the existing structure and report at once whatever "
    u"differs from "
    u"this drawing. No claim for additional work will be accepted on the ground of conditions that such a "
    u"visit would "
    u"have shown.\\P"
    u"Finishes: floors of offices in {\\fTimes New Roman|b0|i1|c0|p18;oak}, 22 mm, oiled; kitchen and lobby "
    u"in tiles 300 \u00D7 600, "
    u"slip class R10. Walls painted white, two coats. Ceilings suspended at 2700 above the finished floor, "
    u"corridor "
    u"at 2400.\\P"
    u"Services: sockets 300 above the floor, switches 1050, both measured to the middle. Cables in the "
    u"corridor run in "
    u"a tray above the ceiling, which must stay accessible.\\P"
    u"\u0391\u03B2\u03B3 \u2013 \u00C4\u00D6\u00DC \u2013 \u0416\u0434\u0443: letters of other alphabets are "
    u"part of the "
    u"drawing, too, and so is \u2205 20 or 45%%d.";

}  // namespace

void write_notes(Sheet& sheet) {
  sheet.set_layer("NOTES");
  sheet.paragraphs({.text = kNotes, .at = {14900, 14000}, .width = 5400});
  sheet.paragraphs(
      {.text = kSchedule, .at = {14900, 7400}, .width = 5400, .style = u"Notes", .line_spacing = 1.2});
  sheet.paragraphs({.text = kGeneral,
                    .at = {1400, 3700},
                    .height = 110,
                    .width = 9200,
                    .columns = {.count = 2, .width = 4450, .gutter = 300, .height = 1500}});
  sheet.paragraphs({.text = u"{\\fArial|b1|i0|c0|p34;\\C1;PRELIMINARY}\\P\\H0.5x;not for construction",
                    .at = {17600, 4500},
                    .height = 250,
                    .attachment = 5,
                    .rotation = 30});
  sheet.paragraphs({.text = u"Street side\\P\\H0.7x;public footpath, keep free",
                    .at = in_plan(-300, 4400),
                    .height = 150,
                    .attachment = 8,
                    .style = u"Lettering",
                    .rotation = 90});
  sheet.paragraphs({.text = u"Table for 8\\P{\\H0.8x;oak, 40 mm}",
                    .at = in_plan(6400, 1850),
                    .width = 1600,
                    .attachment = 5,
                    .background = 9});
}

}  // namespace samples
