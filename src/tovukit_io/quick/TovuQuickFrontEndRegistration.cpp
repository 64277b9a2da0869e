// Linked whole into every executable that links tovukit_quick: adds the Qt
// Quick sheet to the manager's front ends, and pulls the QML module's type
// registration out of the static library, so `import TovuKit` works with no
// call and no import path.

#include <tovukit_io/core/TovuFrontEnds.h>
#include <tovukit_io/quick/TovuQuickFrontEnd.h>

// Generated with the module's types; its file also registers the module itself.
void qml_register_types_TovuKit();

// External, so no compiler drops it and the reference that pulls the module in.
void (*tovuKitQuickModuleRegistration)() = &qml_register_types_TovuKit;

namespace {

const bool quickFrontEndAdded = TovuQuickFrontEnd::install();

} // namespace
