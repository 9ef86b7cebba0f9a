#pragma once

#include "office/workbook.h"

#include <QString>

/// A second suite, driven by the bare calls of its interface.
class BareUno {
public:
    BareUno();
    ~BareUno();
    Q_DISABLE_COPY(BareUno)

    /// Opens a document and saves it as RTF and as HTML.
    void read(const QString& fileName, const QString& target);
    /// Opens a template workbook, gives its columns their formats, writes the last block in one call, and saves the
    /// copy.
    void fill(const QString& templateFile, const office::SheetContent& content, const QString& target);

private:
    struct Private;
    Private* m_private;
};
