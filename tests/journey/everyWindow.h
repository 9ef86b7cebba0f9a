#pragma once

#include "journey.h"

/// A person who opens every window, full of a busy year's work, and looks at each.
class EveryWindow : public Journey {
    Q_OBJECT

protected:
    /// Opens the main window.
    bool begin();
    void visitAll();
    /// What is done at a window that is in front.
    virtual void look(const QString& window) = 0;

private:
    template <typename Way>
    void visit(const QString& window, const QString& form, const Way& way)
    {
        open(form, way);
        look(window);
        leave();
    }
    void visitFileDialog(const QString& window, const QString& dialog, const QString& keys);
    void visitJobs();
    void visitValue(const QString& label);
};
