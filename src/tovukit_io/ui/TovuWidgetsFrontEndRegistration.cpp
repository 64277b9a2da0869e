// Linked whole into every executable that links tovukit_ui: adds the Qt
// Widgets sheet to the manager's front ends. Referring to createPresenter()
// also pulls the presenter out of the static library.

#include <tovukit_io/core/TovuFrontEnds.h>
#include <tovukit_io/ui/TovuWidgetsFrontEnd.h>

namespace {

const bool widgetsFrontEndAdded = TovuFrontEnds::add({"widgets", &TovuWidgetsFrontEnd::createPresenter});

} // namespace
