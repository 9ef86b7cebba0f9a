#include "office/bridge.h"

#include "session.h"
#include "sheet.h"

#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/io/IOException.hpp>
#include <com/sun/star/view/XPrintable.hpp>

namespace office {

namespace {

Made store(const Document& document, const QString& fileName, const Form& form)
{
    const uno::Reference<com::sun::star::frame::XStorable> storable(document, uno::UNO_QUERY_THROW);
    try {
        storable->storeToURL(
            urlOf(fileName),
            sequence({property("FilterName", uno::Any(rtl::OUString::createFromAscii(form.filter))),
                      property("FilterOptions", uno::Any(rtl::OUString::createFromAscii(form.options)))}));
    } catch (const com::sun::star::io::IOException&) {
        return Made::NotWritten;
    }
    return Made::Yes;
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

    Made convert(const QString& fileName, const Form& form, const QStringList& targets,
                 const std::vector<Form>& targetForms) override
    {
        return guarded([&] {
            const Document document = m_session.open(fileName, form.filter, form.options);
            if (!document.is())
                return Made::NotOpened;
            const ClosedAtEnd closed(document);
            Made made = Made::Yes;
            for (std::size_t i = 0; i < targetForms.size() && made == Made::Yes; ++i)
                made = store(document, targets[static_cast<qsizetype>(i)], targetForms[i]);
            return made;
        });
    }

    Made fill(const QString& templateFile, const Filling& filling, const QString& target, Progress& progress) override
    {
        return guarded([&] {
            const Document document = m_session.openAsTemplate(templateFile);
            if (!document.is())
                return Made::NotOpened;
            const ClosedAtEnd closed(document);
            const Made filled = fillSheet(document, filling, progress);
            return filled == Made::Yes ? store(document, target, {"MS Excel 97", ""}) : filled;
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

    bool hasVisibleWindow() override
    {
        return guarded([&] { return m_session.hasVisibleWindow(); });
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
