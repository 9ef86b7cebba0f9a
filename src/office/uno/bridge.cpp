#include "office/bridge.h"

#include "package.h"
#include "session.h"
#include "sheet.h"

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/io/IOException.hpp>
#include <com/sun/star/lang/DisposedException.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/text/XTextFieldsSupplier.hpp>
#include <com/sun/star/view/XPrintable.hpp>

namespace office {

namespace {

void store(const Document& document, const QString& fileName, const FileFormat& format)
{
    const uno::Reference<com::sun::star::frame::XStorable> storable(document, uno::UNO_QUERY_THROW);
    try {
        storable->storeToURL(
            toUrl(fileName),
            makeSequence({makeProperty("FilterName", uno::Any(rtl::OUString::createFromAscii(format.filter))),
                          makeProperty("FilterOptions", uno::Any(rtl::OUString::createFromAscii(format.options)))}));
    } catch (const com::sun::star::io::IOException&) {
        throw CannotWrite();
    }
}

// The suite renews such a field whenever it opens the document.
bool isFieldOfNow(const uno::Reference<lang::XServiceInfo>& field)
{
    if (!field->supportsService("com.sun.star.text.TextField.DateTime"))
        return false;
    bool isFixed = false;
    uno::Reference<com::sun::star::beans::XPropertySet>(field, uno::UNO_QUERY_THROW)->getPropertyValue("IsFixed") >>=
        isFixed;
    return !isFixed;
}

bool showsNow(const Document& document)
{
    const uno::Reference<com::sun::star::text::XTextFieldsSupplier> supplier(document, uno::UNO_QUERY);
    if (!supplier.is())
        return true;
    const auto fields = supplier->getTextFields()->createEnumeration();
    while (fields->hasMoreElements()) {
        if (isFieldOfNow(uno::Reference<lang::XServiceInfo>(fields->nextElement(), uno::UNO_QUERY_THROW)))
            return true;
    }
    return false;
}

/// Turns the suite's own exceptions, which are unknown outside this library, into SuiteGone.
template <typename Call>
auto callSuite(Call call)
{
    try {
        return call();
    } catch (const uno::Exception&) {
        throw SuiteGone();
    }
}

class UnoBridge : public Bridge {
public:
    UnoBridge(const QString& pipeName, const std::atomic<bool>& isAbandoned) : m_session(pipeName, isAbandoned) {}

    bool changeParts(const QString& fileName, const ChangePart& change) override
    {
        return callSuite([&] {
            try {
                office::changeParts(m_session, fileName, change);
                return true;
            } catch (const lang::DisposedException&) {
                throw;
            } catch (const uno::Exception&) {
                return false;
            }
        });
    }

    ConvertResult convert(const QString& fileName, const FileFormat& format, const QStringList& targets,
                          const std::vector<FileFormat>& targetFormats) override
    {
        return callSuite([&] {
            const Document document = m_session.open(fileName, format.filter, format.options);
            if (!document.is())
                return ConvertResult::NotOpened;
            const DocumentCloser closer(document);
            for (std::size_t i = 0; i < targetFormats.size(); ++i)
                store(document, targets[static_cast<qsizetype>(i)], targetFormats[i]);
            return showsNow(document) ? ConvertResult::ForNow : ConvertResult::Converted;
        });
    }

    FillResult fill(const QString& templateFile, const SheetContent& content, const QString& target,
                    QPromise<void>& progress) override
    {
        return callSuite([&] {
            const Document document = m_session.openAsTemplate(templateFile);
            if (!document.is())
                return FillResult::NotOpened;
            const DocumentCloser closer(document);
            if (!fillSheet(document, content, progress))
                return FillResult::NoSheet;
            store(document, target, {"MS Excel 97", ""});
            return FillResult::Filled;
        });
    }

    bool show(const QString& fileName, ShowAs as) override
    {
        return callSuite([&] { return m_session.show(fileName, as == ShowAs::NewDocument).is(); });
    }

    bool print(const QString& fileName, int copies) override
    {
        return callSuite([&] {
            const Document document = m_session.open(fileName, "", "");
            if (!document.is())
                return false;
            const DocumentCloser closer(document);
            uno::Reference<com::sun::star::view::XPrintable>(document, uno::UNO_QUERY_THROW)
                ->print(makeSequence({makeProperty("CopyCount", uno::Any(static_cast<sal_Int16>(copies))),
                                      makeProperty("Wait", uno::Any(true))}));
            return true;
        });
    }

    void endSuite() override
    {
        callSuite([&] { return m_session.endSuite(); });
    }

private:
    Session m_session;
};

} // namespace

} // namespace office

extern "C" office::Bridge* penwrightConnectBridge(const QString& pipeName, const std::atomic<bool>& isAbandoned)
{
    try {
        return new office::UnoBridge(pipeName, isAbandoned);
    } catch (const com::sun::star::uno::Exception&) {
        return nullptr;
    }
}
