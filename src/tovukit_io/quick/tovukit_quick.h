#pragma once

// The Qt Quick front end of TovuKit. Link tovukit::tovukit_quick: `import TovuKit`
// then works in the application's QML, and the manager shows native surveys over
// QQuickWindow and QQuickItem hosts.

#include <tovukit_io/core/TovuNativeSurveyManager.h>
#include <tovukit_io/model/TovuLog.h>
#include <tovukit_io/model/TovuSurvey.h>
#include <tovukit_io/quick/TovuQuickPresenter.h>
#include <tovukit_io/quick/TovuQuickSheet.h>
#include <tovukit_io/quick/TovuQuickStyle.h>
