#pragma once

// TovuKit's web path: a hosted survey page in a web view, embedded, full screen,
// after a number of visits or chosen by fewest responses, for Qt Widgets and
// Qt Quick hosts. Link tovukit::tovukit_web.

#include <tovukit_io/web/TovuActivityIndicator.h>
#include <tovukit_io/web/TovuSurveyBridge.h>
#include <tovukit_io/web/TovuSurveyDelegate.h>
#include <tovukit_io/web/TovuSurveyView.h>
#include <tovukit_io/web/TovuSurveyViewController.h>
#include <tovukit_io/web/TovuSurveyViewModel.h>
#include <tovukit_io/web/TovuSurveyWebPage.h>
#include <tovukit_io/web/TovuSwiftUIWrapper.h>
#include <tovukit_io/web/TovuSwiftUIWrapperAttached.h>
#include <tovukit_io/web/TovuUserContentController.h>
#include <tovukit_io/web/UserDefaultsHelper.h>
