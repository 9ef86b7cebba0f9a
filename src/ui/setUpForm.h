#pragma once

#include "accessKeys.h"

namespace ui {

/// Puts the controls of a Designer file into their form, with their access keys. The size that the form has in Designer
/// goes with the font there: until somebody resizes it, a form is as large as its contents need here.
template <typename Controls, typename Form>
void setUpForm(Controls& controls, Form& form)
{
    controls.setupUi(&form);
    form.setAttribute(Qt::WA_Resized, false);
    applyAccessKeys(form);
}

} // namespace ui
