// The suite's own types stand here and nowhere outside this folder.
#pragma once

#include <QString>

#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/frame/XDesktop2.hpp>
#include <com/sun/star/lang/XComponent.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>

#include <atomic>
#include <vector>

namespace office {

namespace uno = com::sun::star::uno;
namespace lang = com::sun::star::lang;

using Document = uno::Reference<lang::XComponent>;

/// Named values, as calls take them.
using Properties = std::vector<com::sun::star::beans::PropertyValue>;
com::sun::star::beans::PropertyValue property(const char* name, const uno::Any& value);
uno::Sequence<com::sun::star::beans::PropertyValue> sequence(const Properties& properties);

rtl::OUString toUno(const QString& text);
/// A file as the suite names it.
rtl::OUString urlOf(const QString& fileName);

/// A connection to a running suite.
class Session {
public:
    /// Connects as soon as the suite listens; gives up when `abandoned` becomes true. Throws uno::Exception.
    Session(const QString& pipeName, const std::atomic<bool>& abandoned);

    /// Opens a document out of sight and only to read; empty when the suite cannot. Macros never run, links are never
    /// updated. Without a filter the suite finds out what the file is.
    Document open(const QString& fileName, const char* filter, const char* filterOptions);
    /// Makes a new document from a template out of sight; empty when the suite cannot. Macros never run, links are
    /// never updated.
    Document openAsTemplate(const QString& fileName);
    /// Opens a document in a visible window, as itself or as a new one without a file; empty when the suite cannot.
    /// Macros never run, links are never updated.
    Document show(const QString& fileName, bool asNew);
    /// Asks the suite to end. False when it will not.
    bool endSuite();

private:
    Document load(const QString& fileName, Properties properties);

    uno::Reference<com::sun::star::frame::XDesktop2> m_desktop;
};

/// Closes a document however a piece of work ends.
class ClosedAtEnd {
public:
    explicit ClosedAtEnd(Document document);
    ~ClosedAtEnd();
    ClosedAtEnd(const ClosedAtEnd&) = delete;
    ClosedAtEnd& operator=(const ClosedAtEnd&) = delete;

private:
    Document m_document;
};

} // namespace office
