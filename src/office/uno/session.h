// The types of the suite's own interface are used in this folder and nowhere else.
#pragma once

#include <QString>

#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/document/MacroExecMode.hpp>
#include <com/sun/star/frame/XDesktop2.hpp>
#include <com/sun/star/lang/XComponent.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>

#include <atomic>
#include <vector>

namespace office {

namespace uno = com::sun::star::uno;
namespace lang = com::sun::star::lang;

using Document = uno::Reference<lang::XComponent>;

/// Named values, as the suite's functions take them.
using Properties = std::vector<com::sun::star::beans::PropertyValue>;
com::sun::star::beans::PropertyValue makeProperty(const char* name, const uno::Any& value);
uno::Sequence<com::sun::star::beans::PropertyValue> makeSequence(const Properties& properties);

rtl::OUString toUno(const QString& text);
/// The URL by which the suite knows a file.
rtl::OUString toUrl(const QString& fileName);

/// A connection to a running suite.
class Session {
public:
    /// Connects as soon as the suite listens; gives up when `isAbandoned` becomes true. Throws uno::Exception.
    Session(const QString& pipeName, const std::atomic<bool>& isAbandoned);

    /// Opens a document read-only and without showing it; null when the suite cannot. Runs no macros, updates no links.
    /// Without a filter the suite recognises the format itself.
    Document open(const QString& fileName, const char* filter, const char* filterOptions);
    /// Makes a new document from a template without showing it; null when the suite cannot. Runs no macros, updates no
    /// links.
    Document openAsTemplate(const QString& fileName);
    /// Opens a document in a visible window, as its file or as a new one without a file; null when the suite cannot.
    /// Runs no macros, updates no links.
    Document show(const QString& fileName, bool isNew);
    /// Makes one of the suite's objects. Throws uno::Exception.
    uno::Reference<uno::XInterface> makeService(const char* name, const std::vector<uno::Any>& arguments) const;
    /// Asks the suite to end. False when it refuses.
    bool endSuite();

private:
    Document load(const QString& fileName, Properties properties,
                  sal_Int16 macroMode = com::sun::star::document::MacroExecMode::NEVER_EXECUTE);

    uno::Reference<uno::XComponentContext> m_context;
    uno::Reference<com::sun::star::frame::XDesktop2> m_desktop;
};

/// Closes a document at the end of its scope.
class DocumentCloser {
public:
    explicit DocumentCloser(const Document& document);
    ~DocumentCloser();
    DocumentCloser(const DocumentCloser&) = delete;
    DocumentCloser& operator=(const DocumentCloser&) = delete;

private:
    Document m_document;
};

} // namespace office
