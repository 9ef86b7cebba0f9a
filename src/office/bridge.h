#pragma once

#include "document.h"
#include "workbook.h"

#include <QPromise>
#include <QString>

#include <atomic>

namespace office {

/// Thrown by every verb when the suite is gone or does not answer any more.
struct SuiteGone {};

/// Thrown when the suite cannot write a file.
struct CannotWrite {};

/// How the suite opens a file: as what, and with which options of that form; both empty for whatever the file says it
/// is.
struct Form {
    const char* filter = "";
    const char* options = "";
};

/// How the filling of a workbook came out.
enum class Filled { Yes, NotOpened, NoSheet };

/// A connection to a running suite. What speaks the suite's own protocol lies in a library of its own, loaded at the
/// first use: the program starts, and starts quickly, also where there is no suite.
class Bridge {
public:
    Bridge() = default;
    Bridge(const Bridge&) = delete;
    Bridge& operator=(const Bridge&) = delete;
    virtual ~Bridge() = default;

    /// Opens a document out of sight and writes it to another file in each of these forms. Macros never run, links are
    /// never updated, nothing is asked. False when the suite cannot open it.
    virtual bool convert(const QString& fileName, const Form& form, const QStringList& targets,
                         const std::vector<Form>& targetForms) = 0;
    /// Opens a template workbook out of sight, fills it, telling how many rows are written, and writes it to another
    /// file.
    virtual Filled fill(const QString& templateFile, const Filling& filling, const QString& target,
                        QPromise<void>& progress) = 0;
    /// Opens a workbook in a visible window, only to read where someone else has it open. False when it cannot be
    /// opened.
    virtual bool show(const QString& fileName, ShowAs as) = 0;
    /// Prints a workbook out of sight on the default printer and returns when it is spooled. False when it cannot be
    /// opened.
    virtual bool print(const QString& fileName, int copies) = 0;
    /// Asks the suite to end in good order.
    virtual void endSuite() = 0;
};

/// The library's one entry: connects as soon as the suite listens; null when `abandoned` becomes true before.
using ConnectBridge = Bridge* (*)(const QString& pipeName, const std::atomic<bool>& abandoned);
inline constexpr char connectBridgeName[] = "penwrightConnectBridge";

} // namespace office
