// Documents that refer to other files and to the web.
#pragma once

#include "support/files.h"

#include <QRegularExpression>

/// A text that says "kept" before this.
inline QByteArray flat(const QByteArray& body)
{
    return readFile(TEST_FILES "/document.fodt").replace('@', body);
}

/// A picture or another object.
inline QByteArray framed(const QByteArray& element)
{
    return flat("<text:p><draw:frame svg:width='3cm' svg:height='3cm' text:anchor-type='as-char'><draw:" + element +
                " xlink:type='simple' xlink:actuate='onLoad'/></draw:frame></text:p>");
}

/// A paragraph and a shape before these pictures.
inline QByteArray backed(const QByteArray& attributes, const QByteArray& content = {})
{
    const QByteArray picture = attributes + ">" + content;
    return flat("<text:p text:style-name='P'>x</text:p><text:p><draw:rect draw:style-name='G' "
                "text:anchor-type='as-char' "
                "svg:width='3cm' svg:height='3cm'/></text:p>")
        .replace("<office:body>",
                 "<office:styles><draw:fill-image draw:name='F' " + picture +
                     "</draw:fill-image></office:styles><office:automatic-styles "
                     "xmlns:style='urn:oasis:names:tc:opendocument:xmlns:style:1.0'><!-- > <text:a ='--><style:style "
                     "style:name='P' style:family='paragraph'><style:paragraph-properties><style:background-image " +
                     picture +
                     "</style:background-image></style:paragraph-properties></style:style><style:style style:name='G' "
                     "style:family='graphic'><style:graphic-properties draw:fill='bitmap' draw:fill-image-name='F'/>"
                     "</style:style></office:automatic-styles><office:body>");
}

/// A document with pictures and hyperlinks.
inline QByteArray whole(const QByteArray& picture)
{
    const QByteArray data = "<office:binary-data>" + picture.toBase64() + "</office:binary-data>";
    return backed({}, data).replace(
        "</office:text>", "<text:p><text:a xlink:href='https://example.org/?a=1&amp;b=..'>web</text:a>"
                          "<draw:a xlink:href='mailto:a@example.org'><draw:frame svg:width='3cm' svg:height='3cm' "
                          "text:anchor-type='as-char'><draw:image>" +
                              data + "</draw:image></draw:frame></draw:a></text:p></office:text>");
}

/// Puts this place where the part of a zipped document names a picture.
inline QByteArray linkPart(const QByteArray& part, const QByteArray& place)
{
    static const QRegularExpression href("href=\"Pictures/[^\"]*"), target("Target=\"media/[^\"]*");
    if (part.startsWith("\x89PNG"))
        return part;
    return QString::fromLatin1(part)
        .replace(href, "href=\"" + place)
        .replace(target, "TargetMode=\"External\" Target=\"" + place)
        .replace("r:embed=", "r:link=")
        .toLatin1();
}

inline QByteArray section(const QByteArray& source)
{
    return flat("<text:section text:name='s'><" + source + "/><text:p>old</text:p></text:section>");
}

inline QByteArray field(const QByteArray& instruction)
{
    return "{\\rtf1\\ansi kept {\\field{\\*\\fldinst " + instruction + "}{\\fldrslt old}}\\par}";
}
