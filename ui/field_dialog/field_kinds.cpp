#include "ui/field_dialog/field_kinds.h"

namespace fields {

namespace {

constexpr format_row kDates[] = {
    {u"2020-04-21", u"yyyy-MM-dd"},
    {u"21.04.2020", u"dd.MM.yyyy"},
    {u"21/04/2020", u"dd/MM/yyyy"},
    {u"4/21/2020", u"M/d/yyyy"},
    {u"21 April 2020", u"d MMMM yyyy"},
    {u"Tuesday, April 21, 2020", u"dddd, MMMM d, yyyy"},
    {u"2020-04-21 16:45", u"yyyy-MM-dd HH:mm"},
    {u"4:45 PM", u"h:mm tt"},
};

constexpr format_row kFileNames[] = {
    {u"name with extension", u"%fn6"},
    {u"name", u"%fn2"},
    {u"folder, name and extension", u"%fn7"},
    {u"folder", u"%fn1"},
};

constexpr format_row kSizes[] = {{u"bytes", u"%by1"}, {u"kilobytes", u"%by2"}, {u"megabytes", u"%by3%pr1"}};

constexpr format_row kTexts[] = {
    {u"as it is", u""},          {u"UPPER CASE", u"%tc1"}, {u"lower case", u"%tc2"},
    {u"First capital", u"%tc3"}, {u"Title Case", u"%tc4"},
};

constexpr format_row kNumbers[] = {
    {u"as the drawing writes it", u""},
    {u"decimal, no digits", u"%lu2%pr0"},
    {u"decimal, one digit", u"%lu2%pr1"},
    {u"decimal, two digits", u"%lu2%pr2"},
    {u"decimal, three digits", u"%lu2%pr3"},
    {u"scientific", u"%lu1%pr4"},
    {u"feet and inches, decimal", u"%lu3%pr2"},
    {u"feet and inches, fractions", u"%lu4%pr4"},
    {u"fractions", u"%lu5%pr4"},
};

constexpr kind_row kKinds[] = {
    {u"Date", u"\\AcVar Date", argument::none, kDates},
    {u"Date of creation", u"\\AcVar CreateDate", argument::none, kDates},
    {u"Date of saving", u"\\AcVar SaveDate", argument::none, kDates},
    {u"File name", u"\\AcVar Filename", argument::none, kFileNames},
    {u"File size", u"\\AcVar Filesize", argument::none, kSizes},
    {u"Title", u"\\AcVar Title", argument::none, kTexts},
    {u"Subject", u"\\AcVar Subject", argument::none, kTexts},
    {u"Author", u"\\AcVar Author", argument::none, kTexts},
    {u"Keywords", u"\\AcVar Keywords", argument::none, kTexts},
    {u"Comments", u"\\AcVar Comments", argument::none, kTexts},
    {u"Last saved by", u"\\AcVar LastSavedBy", argument::none, kTexts},
    {u"System variable", u"\\AcVar ", argument::name, kNumbers},
    {u"Object property", u"\\AcObjProp ", argument::object, kNumbers},
    {u"Expression", u"\\AcExpr ", argument::expression, kNumbers},
};

constexpr std::u16string_view kProperties[] = {
    u"Length", u"Area",   u"Radius",     u"Diameter", u"Circumference", u"Layer",    u"Color",
    u"Center", u"Height", u"StartPoint", u"EndPoint", u"TextString",    u"Linetype", u"InsertionPoint",
};

}  // namespace

std::span<const kind_row> kinds() { return kKinds; }

std::span<const std::u16string_view> properties() { return kProperties; }

}  // namespace fields
