// Linked whole into every executable that links tovukit_web. The module's
// type registration (generated, with the static object that makes the module
// known to QML) sits in an object file of the static library that nothing
// else refers to; this pointer does, so the linker keeps it and
// `import TovuKit.Web` works without a call.

// Written by qmltyperegistrar for the module TovuKit.Web.
void qml_register_types_TovuKit_Web();

// External and not const, so no optimization may drop it or the reference.
void (*tovuKitWebModuleRegistration)() = &qml_register_types_TovuKit_Web;
