#include "office/bridge.h"

#include "session.h"
#include "sheet.h"

#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/io/IOException.hpp>
#include <com/sun/star/view/XPrintable.hpp>

namespace office {

namespace {

void store(const Document& document, const QString& fileName, const Form& form)
{
    const uno::Reference<com::sun::star::frame::XStorable> storable(document, uno::UNO_QUERY_THROW);
    try {
        storable->storeToURL(
            urlOf(fileName),
            sequence({property("FilterName", uno::Any(rtl::OUString::createFromAscii(form.filter))),
                      property("FilterOptions", uno::Any(rtl::OUString::createFromAscii(form.options)))}));
    } catch (const com::sun::star::io::IOException&) {
        throw CannotWrite();
    }
}

/// No error of the suite's own kind leaves this library.
template <typename Verb>
auto guarded(Verb verb)
{
    try {
        return verb();
    } catch (const uno::Exception&) {
        throw SuiteGone();
    }
}

class UnoBridge : public Bridge {
public:
    UnoBridge(const QString& pipeName, const std::atomic<bool>& abandoned) : m_session(pipeName, abandoned) {}

    bool convert(const QString& fileName, const Form& form, const QStringList& targets,
                 const std::vector<Form>& targetForms) override
    {
        return guarded([&] {
            const Document document = m_session.open(fileName, form.filter, form.options);
            if (!document.is())
                return false;
            const ClosedAtEnd closed(document);
            for (std::size_t i = 0; i < targetForms.size(); ++i)
                store(document, targets[static_cast<qsizetype>(i)], targetForms[i]);
            return true;
        });
    }

    Filled fill(const QString& templateFile, const Filling& filling, const QString& target,
                QPromise<void>& progress) override
    {
        return guarded([&] {
            const Document document = m_session.openAsTemplate(templateFile);
            if (!document.is())
                return Filled::NotOpened;
            const ClosedAtEnd closed(document);
            if (!fillSheet(document, filling, progress))
                return Filled::NoSheet;
            store(document, target, {"MS Excel 97", ""});
            return Filled::Yes;
        });
    }

    bool show(const QString& fileName, ShowAs as) override
    {
        return guarded([&] { return m_session.show(fileName, as == ShowAs::NewDocument).is(); });
    }

    bool print(const QString& fileName, int copies) override
    {
        return guarded([&] {
            const Document document = m_session.open(fileName, "", "");
            if (!document.is())
                return false;
            const ClosedAtEnd closed(document);
            uno::Reference<com::sun::star::view::XPrintable>(document, uno::UNO_QUERY_THROW)
                ->print(sequence({property("CopyCount", uno::Any(static_cast<sal_Int16>(copies))),
                                  property("Wait", uno::Any(true))}));
            return true;
        });
    }

    void endSuite() override
    {
        guarded([&] { return m_session.endSuite(); });
    }

private:
    Session m_session;
};

} // namespace

} // namespace office

extern "C" office::Bridge* penwrightConnectBridge(const QString& pipeName, const std::atomic<bool>& abandoned)
{
    try {
        return new office::UnoBridge(pipeName, abandoned);
    } catch (const com::sun::star::uno::Exception&) {
        return nullptr;
    }
}
