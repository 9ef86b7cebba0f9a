#pragma once

#include "workspace.h"

namespace ui {

/// The main window as other forms see it.
class Shell {
public:
    Shell() = default;
    Shell(const Shell&) = delete;
    Shell& operator=(const Shell&) = delete;
    virtual ~Shell() = default;

    /// The workspace; opens and shows it first if it is not open.
    virtual Workspace& workspace() = 0;

    /// Enables or disables the menus File, Data, Templates and Reports. Help stays enabled.
    virtual void setMenusEnabled(bool enabled) = 0;
};

} // namespace ui
