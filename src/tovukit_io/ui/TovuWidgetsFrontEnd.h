#pragma once

#include <memory>

class TovuSurveyPresenter;
class TovuUrlOpener;

/// The Qt Widgets front end as the manager sees it (TovuFrontEnds).
namespace TovuWidgetsFrontEnd {

/// A TovuSheetPresenter; `urlOpener` may be null.
std::unique_ptr<TovuSurveyPresenter> createPresenter(TovuUrlOpener *urlOpener);

} // namespace TovuWidgetsFrontEnd
