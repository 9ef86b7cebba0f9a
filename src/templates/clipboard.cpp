#include "clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <memory>

using namespace Qt::StringLiterals;

namespace templates {

void copyToClipboard(const office::Content& content)
{
    auto data = std::make_unique<QMimeData>();
    // Programs ask for RTF by different names.
    for (const char* name : {"text/rtf", "text/richtext", "application/rtf"})
        data->setData(QLatin1String(name), content.rtf);
    data->setData(u"text/html"_s, content.html);
    data->setText(content.text);
    QGuiApplication::clipboard()->setMimeData(data.release());
}

} // namespace templates
