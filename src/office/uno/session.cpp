#include "session.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <com/sun/star/bridge/UnoUrlResolver.hpp>
#include <com/sun/star/document/UpdateDocMode.hpp>
#include <com/sun/star/lang/DisposedException.hpp>
#include <com/sun/star/lang/XMultiComponentFactory.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <cppuhelper/bootstrap.hxx>

#include <chrono>
#include <thread>

using namespace Qt::StringLiterals;

namespace office {

using com::sun::star::beans::PropertyValue;
namespace MacroExecMode = com::sun::star::document::MacroExecMode;
namespace frame = com::sun::star::frame;

namespace {

// The mode that runs no macros makes newer suites show a bar about macros above every document that has a window,
// whether it has any or not. The mode that runs those of trusted places, of which our profile has none, shows a box
// above those that have some, and waits for its answer. So both are needed. Here: a workbook of the old format without
// the part that holds macros.
bool isWithoutMacros(const QString& fileName)
{
    constexpr QByteArrayView oldFormat("\xD0\xCF\x11\xE0");
    constexpr QStringView macros = u"_VBA_PROJECT";
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray content = file.readAll();
    return content.startsWith(oldFormat) &&
           !content.contains(QByteArrayView(reinterpret_cast<const char*>(macros.utf16()), 2 * macros.size()));
}

} // namespace

PropertyValue makeProperty(const char* name, const uno::Any& value)
{
    PropertyValue result;
    result.Name = rtl::OUString::createFromAscii(name);
    result.Value = value;
    return result;
}

uno::Sequence<PropertyValue> makeSequence(const Properties& properties)
{
    return {properties.data(), static_cast<sal_Int32>(properties.size())};
}

rtl::OUString toUno(const QString& text)
{
    return rtl::OUString(reinterpret_cast<const sal_Unicode*>(text.utf16()), static_cast<sal_Int32>(text.size()));
}

rtl::OUString toUrl(const QString& fileName)
{
    return toUno(QString::fromLatin1(QUrl::fromLocalFile(fileName).toEncoded()));
}

Session::Session(const QString& pipeName, const std::atomic<bool>& isAbandoned)
{
    static const uno::Reference<uno::XComponentContext> local = [] {
        qputenv("URE_BOOTSTRAP", "vnd.sun.star.pathname:" OFFICE_PROGRAM_FOLDER "/fundamentalrc");
        return cppu::defaultBootstrap_InitialComponentContext();
    }();
    const auto resolver = com::sun::star::bridge::UnoUrlResolver::create(local);
    const rtl::OUString address = toUno(u"uno:pipe,name=%1;urp;StarOffice.ComponentContext"_s.arg(pipeName));
    while (!m_context.is()) {
        try {
            m_context.set(resolver->resolve(address), uno::UNO_QUERY);
        } catch (const uno::Exception&) {
            // It does not listen yet.
            if (isAbandoned)
                throw;
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
    }
    m_desktop.set(makeService("com.sun.star.frame.Desktop", {}), uno::UNO_QUERY_THROW);
}

uno::Reference<uno::XInterface> Session::makeService(const char* name, const std::vector<uno::Any>& arguments) const
{
    return m_context->getServiceManager()->createInstanceWithArgumentsAndContext(
        rtl::OUString::createFromAscii(name), {arguments.data(), static_cast<sal_Int32>(arguments.size())}, m_context);
}

Document Session::open(const QString& fileName, const char* filter, const char* filterOptions)
{
    Properties properties{makeProperty("Hidden", uno::Any(true)), makeProperty("ReadOnly", uno::Any(true))};
    if (*filter != '\0') {
        properties.push_back(makeProperty("FilterName", uno::Any(rtl::OUString::createFromAscii(filter))));
        properties.push_back(makeProperty("FilterOptions", uno::Any(rtl::OUString::createFromAscii(filterOptions))));
    }
    return load(fileName, std::move(properties));
}

Document Session::openAsTemplate(const QString& fileName)
{
    return load(fileName, {makeProperty("Hidden", uno::Any(true)), makeProperty("AsTemplate", uno::Any(true))});
}

Document Session::show(const QString& fileName, bool isNew)
{
    // Otherwise the suite would ask what to do, even if the lock is its own or was left by a crash.
    const QFileInfo file(fileName);
    const bool isOpenElsewhere = file.dir().exists(u".~lock.%1#"_s.arg(file.fileName()));
    return load(fileName,
                {makeProperty("AsTemplate", uno::Any(isNew)), makeProperty("ReadOnly", uno::Any(isOpenElsewhere))},
                isWithoutMacros(fileName) ? MacroExecMode::FROM_LIST_NO_WARN : MacroExecMode::NEVER_EXECUTE);
}

Document Session::load(const QString& fileName, Properties properties, sal_Int16 macroMode)
{
    properties.push_back(makeProperty("MacroExecutionMode", uno::Any(macroMode)));
    properties.push_back(makeProperty("Silent", uno::Any(true)));
    properties.push_back(makeProperty("UpdateDocMode", uno::Any(com::sun::star::document::UpdateDocMode::NO_UPDATE)));
    try {
        return m_desktop->loadComponentFromURL(toUrl(fileName), "_blank", 0, makeSequence(properties));
    } catch (const lang::DisposedException&) {
        throw;
    } catch (const uno::Exception&) {
        // The file could not be read; the suite's readers throw different kinds of exceptions.
        return {};
    }
}

bool Session::endSuite()
{
    try {
        return m_desktop->terminate();
    } catch (const lang::DisposedException&) {
        // It ended before it could answer.
        return true;
    }
}

DocumentCloser::DocumentCloser(const Document& document) : m_document(document) {}

DocumentCloser::~DocumentCloser()
{
    try {
        uno::Reference<com::sun::star::util::XCloseable>(m_document, uno::UNO_QUERY_THROW)->close(true);
    } catch (const uno::Exception&) {
        // The suite has ended, and the document with it.
        return;
    }
}

} // namespace office
