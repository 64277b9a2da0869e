#pragma once

// How the classes of the lower layers appear in the QML module `TovuKit`. Those
// layers know nothing of QML; these declarations register them from here.

#include <tovukit_io/core/TovuNativeSurveyManager.h>
#include <tovukit_io/viewmodel/TovuDropdownQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuIntroViewModel.h>
#include <tovukit_io/viewmodel/TovuMultiNPSQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuMultiRatingQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuMultipleChoiceQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuNPSQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuPageMetrics.h>
#include <tovukit_io/viewmodel/TovuProgressViewModel.h>
#include <tovukit_io/viewmodel/TovuQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuRatingQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuSheetMetrics.h>
#include <tovukit_io/viewmodel/TovuSingleChoiceQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuTextBoxQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuThankYouViewModel.h>

#include <QJSEngine>
#include <QQmlEngine>
#include <QtQml/qqml.h>

/// `TovuNativeSurveyManager`: the same object as TovuNativeSurveyManager::shared().
struct TovuNativeSurveyManagerForeign {
    Q_GADGET
    QML_FOREIGN(TovuNativeSurveyManager)
    QML_NAMED_ELEMENT(TovuNativeSurveyManager)
    QML_SINGLETON

public:
    static TovuNativeSurveyManager *create(QQmlEngine *, QJSEngine *)
    {
        TovuNativeSurveyManager *manager = &TovuNativeSurveyManager::shared();
        // Shared by every engine and by C++: no engine may delete it.
        QJSEngine::setObjectOwnership(manager, QJSEngine::CppOwnership);
        return manager;
    }
};

/// `TovuSheetMetrics` and `TovuPageMetrics`: the numbers both front ends draw with.
struct TovuSheetMetricsForeign {
    Q_GADGET
    QML_FOREIGN(TovuSheetMetrics)
    QML_NAMED_ELEMENT(TovuSheetMetrics)
    QML_SINGLETON
};

struct TovuPageMetricsForeign {
    Q_GADGET
    QML_FOREIGN(TovuPageMetrics)
    QML_NAMED_ELEMENT(TovuPageMetrics)
    QML_SINGLETON
};

// The view models the pages bind to; the presenter makes them.
struct TovuQuestionViewModelForeign {
    Q_GADGET
    QML_FOREIGN(TovuQuestionViewModel)
    QML_NAMED_ELEMENT(TovuQuestionViewModel)
    QML_UNCREATABLE("made by the presenter")
};

struct TovuSingleChoiceQuestionViewModelForeign {
    Q_GADGET
    QML_FOREIGN(TovuSingleChoiceQuestionViewModel)
    QML_NAMED_ELEMENT(TovuSingleChoiceQuestionViewModel)
    QML_UNCREATABLE("made by the presenter")
};

struct TovuMultipleChoiceQuestionViewModelForeign {
    Q_GADGET
    QML_FOREIGN(TovuMultipleChoiceQuestionViewModel)
    QML_NAMED_ELEMENT(TovuMultipleChoiceQuestionViewModel)
    QML_UNCREATABLE("made by the presenter")
};

struct TovuDropdownQuestionViewModelForeign {
    Q_GADGET
    QML_FOREIGN(TovuDropdownQuestionViewModel)
    QML_NAMED_ELEMENT(TovuDropdownQuestionViewModel)
    QML_UNCREATABLE("made by the presenter")
};

struct TovuTextBoxQuestionViewModelForeign {
    Q_GADGET
    QML_FOREIGN(TovuTextBoxQuestionViewModel)
    QML_NAMED_ELEMENT(TovuTextBoxQuestionViewModel)
    QML_UNCREATABLE("made by the presenter")
};

struct TovuProgressViewModelForeign {
    Q_GADGET
    QML_FOREIGN(TovuProgressViewModel)
    QML_NAMED_ELEMENT(TovuProgressViewModel)
    QML_UNCREATABLE("made by the sheet")
};

struct TovuIntroViewModelForeign {
    Q_GADGET
    QML_FOREIGN(TovuIntroViewModel)
    QML_NAMED_ELEMENT(TovuIntroViewModel)
    QML_UNCREATABLE("made by the presenter")
};

struct TovuThankYouViewModelForeign {
    Q_GADGET
    QML_FOREIGN(TovuThankYouViewModel)
    QML_NAMED_ELEMENT(TovuThankYouViewModel)
    QML_UNCREATABLE("made by the presenter")
};

struct TovuNPSQuestionViewModelForeign {
    Q_GADGET
    QML_FOREIGN(TovuNPSQuestionViewModel)
    QML_NAMED_ELEMENT(TovuNPSQuestionViewModel)
    QML_UNCREATABLE("made by the presenter")
};

struct TovuMultiNPSQuestionViewModelForeign {
    Q_GADGET
    QML_FOREIGN(TovuMultiNPSQuestionViewModel)
    QML_NAMED_ELEMENT(TovuMultiNPSQuestionViewModel)
    QML_UNCREATABLE("made by the presenter")
};

struct TovuMultiRatingQuestionViewModelForeign {
    Q_GADGET
    QML_FOREIGN(TovuMultiRatingQuestionViewModel)
    QML_NAMED_ELEMENT(TovuMultiRatingQuestionViewModel)
    QML_UNCREATABLE("made by the presenter")
};

struct TovuRatingQuestionViewModelForeign {
    Q_GADGET
    QML_FOREIGN(TovuRatingQuestionViewModel)
    QML_NAMED_ELEMENT(TovuRatingQuestionViewModel)
    QML_UNCREATABLE("made by the presenter")
};
