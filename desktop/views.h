#pragma once

namespace norvane {

class Desktop;
class Form;
class FormView;

/// The window of a form, with a widget for every field that it shows. Nobody owns it yet.
FormView* Make_View(Desktop& desktop, Form& form);

}  // namespace norvane
