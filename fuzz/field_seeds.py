"""Seeds of the targets that read fields and texts of other programs' clipboards."""


def rich_read():
    return [
        b"<p style='font-size:11pt;color:#f00'>a <b>b</b><br><i>c</i><sup>2</sup></p><ol><li>x<ul><li>y</ul></ol>",
        b"<table><tr><td>a<td>b</table><pre>a  b</pre><font color=red size=+2>c</font>&nbsp;&eacute;",
        b"{\\rtf1\\ansi\\ansicpg1252{\\colortbl;\\red255\\green0\\blue0;}\\cf1 a\\b b\\par\\fs28 c{\\super 2}\\u8364?\\'e9}",
        b"{\\rtf1{\\listtext 1.\\tab}a\\line b{\\*\\x y}\\bin3 abc\\ul c\\ulnone}",
    ]


def field_code():
    return [
        b'\\AcVar d \\f "dddd, MMMM dd, yyyy h:mm tt"',
        b'\\AcVar r \\f "%lu4%pr3%zs12%ds44%th46%ct8[0.5]%ps[a,b]"',
        b'\\AcObjProp Object(%<\\_ObjId 12>%).p \\f "%pt3"',
        b'\\AcExpr (%<\\AcVar r>% + -2)*3^%<\\AcVar i>% \\f "%lu2"',
        b'\\AcVar t \\f "%fn6%tc4"',
        b'\\AcVar a \\f "%au4"',
    ]
