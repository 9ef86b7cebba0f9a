#pragma once

#include "document.h"
#include "workbook.h"

#include <QPromise>
#include <QString>

#include <atomic>
#include <functional>

namespace office {

/// Thrown by every function of a bridge when the suite has ended or no longer answers.
struct SuiteGone {};

/// Thrown when the suite cannot write a file.
struct CannotWrite {};

/// A format in which the suite reads or writes a file, with its options. Empty when reading: the suite recognises the
/// format itself.
struct FileFormat {
    const char* filter = "";
    const char* options = "";
};

/// The result of converting a document; `ForNow` when it shows the date or the time of now.
enum class ConvertResult { NotOpened, Converted, ForNow };

/// Gives what shall stand in a document's part in place of its content.
using ChangePart = std::function<QByteArray(const QByteArray&)>;

/// The result of filling a workbook.
enum class FillResult { Filled, NotOpened, NoSheet };

/// A connection to a running suite. Its implementation is a separate library, loaded at the first use, so that the
/// program starts quickly, and starts even without a suite.
class Bridge {
public:
    Bridge() = default;
    Bridge(const Bridge&) = delete;
    Bridge& operator=(const Bridge&) = delete;
    virtual ~Bridge() = default;

    /// Changes the parts of a zipped document. False when it or one of its parts cannot be read, or is over 64 MB.
    virtual bool changeParts(const QString& fileName, const ChangePart& change) = 0;
    /// Opens a document without showing it and saves it in each of these formats. Runs no macros, updates no links,
    /// asks nothing.
    virtual ConvertResult convert(const QString& fileName, const FileFormat& format, const QStringList& targets,
                                  const std::vector<FileFormat>& targetFormats) = 0;
    /// Opens a template workbook without showing it, fills it and saves it as another file. Reports the number of rows
    /// written so far as progress.
    virtual FillResult fill(const QString& templateFile, const SheetContent& content, const QString& target,
                            QPromise<void>& progress) = 0;
    /// Opens a workbook in a visible window; read-only if somebody else has it open. False when the suite cannot open
    /// it.
    virtual bool show(const QString& fileName, ShowAs as) = 0;
    /// Prints a workbook on the default printer without showing it, and returns when it is in the queue. False when the
    /// suite cannot open it.
    virtual bool print(const QString& fileName, int copies) = 0;
    /// Asks the suite to end normally.
    virtual void endSuite() = 0;
};

/// The only function that the library exports: connects as soon as the suite listens. Null if `isAbandoned` becomes
/// true before that.
using ConnectBridge = Bridge* (*)(const QString& pipeName, const std::atomic<bool>& isAbandoned);
inline constexpr char connectBridgeName[] = "penwrightConnectBridge";

} // namespace office
