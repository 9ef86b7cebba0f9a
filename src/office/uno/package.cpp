#include "package.h"

#include <com/sun/star/beans/NamedValue.hpp>
#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/container/XHierarchicalNameAccess.hpp>
#include <com/sun/star/io/IOException.hpp>
#include <com/sun/star/io/XActiveDataSink.hpp>
#include <com/sun/star/util/XChangesBatch.hpp>

namespace office {

namespace container = com::sun::star::container;
namespace io = com::sun::star::io;
using com::sun::star::beans::NamedValue;

namespace {

constexpr sal_Int32 maximumPartBytes = 64 * 1024 * 1024;

QByteArray readPart(const uno::Reference<io::XActiveDataSink>& part)
{
    uno::Sequence<sal_Int8> bytes;
    if (part->getInputStream()->readBytes(bytes, maximumPartBytes + 1) > maximumPartBytes)
        throw io::IOException();
    return {reinterpret_cast<const char*>(bytes.getConstArray()), bytes.getLength()};
}

bool changePart(const Session& session, const uno::Reference<io::XActiveDataSink>& part, const ChangePart& change)
{
    const QByteArray content = readPart(part);
    const QByteArray changed = change(content);
    if (changed == content)
        return false;
    const uno::Sequence<sal_Int8> bytes(reinterpret_cast<const sal_Int8*>(changed.constData()),
                                        static_cast<sal_Int32>(changed.size()));
    part->setInputStream(uno::Reference<io::XInputStream>(
        session.makeService("com.sun.star.io.SequenceInputStream", {uno::Any(bytes)}), uno::UNO_QUERY_THROW));
    return true;
}

} // namespace

void changeParts(const Session& session, const QString& fileName, const ChangePart& change)
{
    const auto package = session.makeService(
        "com.sun.star.packages.Package",
        {uno::Any(toUrl(fileName)), uno::Any(NamedValue("StorageFormat", uno::Any(rtl::OUString("ZipFormat"))))});
    // Not by recursion: a hostile document may nest its folders without end.
    std::vector<uno::Any> left(1);
    left[0] =
        uno::Reference<container::XHierarchicalNameAccess>(package, uno::UNO_QUERY_THROW)->getByHierarchicalName("/");
    bool isChanged = false;
    while (!left.empty()) {
        const uno::Any each = left.back();
        left.pop_back();
        const uno::Reference<io::XActiveDataSink> part(each, uno::UNO_QUERY);
        if (part.is()) {
            isChanged |= changePart(session, part, change);
            continue;
        }
        const auto content =
            uno::Reference<container::XEnumerationAccess>(each, uno::UNO_QUERY_THROW)->createEnumeration();
        while (content->hasMoreElements())
            left.push_back(content->nextElement());
    }
    if (isChanged)
        uno::Reference<com::sun::star::util::XChangesBatch>(package, uno::UNO_QUERY_THROW)->commitChanges();
}

} // namespace office
