#include "od/fonts/typeface_aliases.h"

#include <array>

#include "od/base/unicode.h"
#include "od/fonts/font_file.h"

namespace {

constexpr std::u16string_view kSans = u"Liberation Sans";
constexpr std::u16string_view kSerif = u"Liberation Serif";
constexpr std::u16string_view kMono = u"Liberation Mono";
constexpr std::u16string_view kNarrow = u"Liberation Sans Narrow";

struct Alias {
  std::u16string_view family;
  std::array<std::u16string_view, 3> standIns;
};

constexpr Alias kAliases[] = {
    {u"arial", {kSans}},
    {u"arial black", {kSans}},
    {u"arial narrow", {kNarrow, kSans}},
    {u"arial unicode ms", {kSans}},
    {u"bookman old style", {u"URW Bookman", kSerif}},
    {u"calibri", {u"Carlito", kSans}},
    {u"cambria", {u"Caladea", kSerif}},
    {u"century gothic", {u"URW Gothic", kSans}},
    {u"century schoolbook", {u"C059", kSerif}},
    {u"consolas", {u"DejaVu Sans Mono", kMono}},
    {u"courier", {kMono}},
    {u"courier new", {kMono}},
    {u"garamond", {u"EB Garamond", kSerif}},
    {u"georgia", {u"Gelasio", u"DejaVu Serif", kSerif}},
    {u"helvetica", {kSans}},
    {u"lucida console", {u"DejaVu Sans Mono", kMono}},
    {u"lucida sans unicode", {u"DejaVu Sans", kSans}},
    {u"microsoft sans serif", {kSans}},
    {u"ms sans serif", {kSans}},
    {u"palatino linotype", {u"P052", kSerif}},
    {u"segoe ui", {kSans}},
    {u"symbol", {u"Standard Symbols PS", u"DejaVu Sans"}},
    {u"tahoma", {u"DejaVu Sans Condensed", kSans}},
    {u"times", {kSerif}},
    {u"times new roman", {kSerif}},
    {u"trebuchet ms", {u"Fira Sans", kSans}},
    {u"verdana", {u"DejaVu Sans", kSans}},
    {u"wingdings", {u"D050000L", u"DejaVu Sans"}},
};

struct FileRow {
  std::u16string_view stem, family;
  bool bold, italic;
};

constexpr FileRow kFiles[] = {
    {u"arial", u"Arial", false, false},           {u"arialbd", u"Arial", true, false},
    {u"ariali", u"Arial", false, true},           {u"arialbi", u"Arial", true, true},
    {u"arialn", u"Arial Narrow", false, false},   {u"arialnb", u"Arial Narrow", true, false},
    {u"arialni", u"Arial Narrow", false, true},   {u"arialnbi", u"Arial Narrow", true, true},
    {u"ariblk", u"Arial Black", false, false},    {u"arialuni", u"Arial Unicode MS", false, false},
    {u"calibri", u"Calibri", false, false},       {u"calibrib", u"Calibri", true, false},
    {u"calibrii", u"Calibri", false, true},       {u"calibriz", u"Calibri", true, true},
    {u"cambria", u"Cambria", false, false},       {u"consola", u"Consolas", false, false},
    {u"consolab", u"Consolas", true, false},      {u"cour", u"Courier New", false, false},
    {u"courbd", u"Courier New", true, false},     {u"couri", u"Courier New", false, true},
    {u"courbi", u"Courier New", true, true},      {u"georgia", u"Georgia", false, false},
    {u"gothic", u"Century Gothic", false, false}, {u"micross", u"Microsoft Sans Serif", false, false},
    {u"segoeui", u"Segoe UI", false, false},      {u"symbol", u"Symbol", false, false},
    {u"tahoma", u"Tahoma", false, false},         {u"tahomabd", u"Tahoma", true, false},
    {u"times", u"Times New Roman", false, false}, {u"timesbd", u"Times New Roman", true, false},
    {u"timesi", u"Times New Roman", false, true}, {u"timesbi", u"Times New Roman", true, true},
    {u"trebuc", u"Trebuchet MS", false, false},   {u"verdana", u"Verdana", false, false},
    {u"verdanab", u"Verdana", true, false},       {u"verdanai", u"Verdana", false, true},
    {u"verdanaz", u"Verdana", true, true},        {u"wingding", u"Wingdings", false, false},
};

}  // namespace

std::vector<std::u16string_view> odTypefaceAliases(std::u16string_view family) {
  std::vector<std::u16string_view> result;
  for (const Alias& alias : kAliases) {
    if (!odEqualNoCase(alias.family, family)) continue;
    for (std::u16string_view name : alias.standIns) {
      if (!name.empty()) result.push_back(name);
    }
  }
  return result;
}

OdTypefaceOfFile odTypefaceOfFile(std::u16string_view fileName) {
  std::u16string stem = odStemOf(fileName);
  for (const FileRow& row : kFiles) {
    if (odEqualNoCase(row.stem, stem)) return {row.family, row.bold, row.italic};
  }
  return {};
}
