// Documents that refer to other files and to the web.
#pragma once

#include <QByteArray>
#include <QRegularExpression>
#include <QString>

inline QByteArray flat(const QByteArray& body)
{
    return "<?xml version='1.0'?><office:document xmlns:office='urn:oasis:names:tc:opendocument:xmlns:office:1.0' "
           "xmlns:text='urn:oasis:names:tc:opendocument:xmlns:text:1.0' "
           "xmlns:ooo='http://openoffice.org/2004/office' xmlns:dom='http://www.w3.org/2001/xml-events' "
           "xmlns:script='urn:oasis:names:tc:opendocument:xmlns:script:1.0' "
           "xmlns:table='urn:oasis:names:tc:opendocument:xmlns:table:1.0' xmlns:xlink='http://www.w3.org/1999/xlink' "
           "xmlns:draw='urn:oasis:names:tc:opendocument:xmlns:drawing:1.0' "
           "xmlns:svg='urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0' office:version='1.2' "
           "office:mimetype=\"application/vnd.oasis.opendocument.text\"><office:body><office:text>"
           "<text:p>kept</text:p>" +
           body + "</office:text></office:body></office:document>";
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

/// A program in the document that runs when it is opened, and writes this file.
inline QByteArray macroOnOpening(const QString& trace)
{
    return "<office:scripts><office:script script:language='ooo:Basic'><ooo:libraries><ooo:library-embedded "
           "ooo:name='Standard'><ooo:module ooo:name='M'><ooo:source-code>Sub Run\nOpen \"" +
           trace.toUtf8() +
           "\" For Output As #1\nClose #1\nEnd Sub</ooo:source-code></ooo:module></ooo:library-embedded>"
           "</ooo:libraries></office:script><office:event-listeners><script:event-listener "
           "script:language='ooo:script' script:event-name='dom:load' xlink:type='simple' "
           "xlink:href='vnd.sun.star.script:Standard.M.Run?language=Basic&amp;location=document'/>"
           "</office:event-listeners></office:scripts>";
}
