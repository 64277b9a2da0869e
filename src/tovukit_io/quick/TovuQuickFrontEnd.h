#pragma once

#include <memory>

class TovuSurveyPresenter;
class TovuUrlOpener;

/// The Qt Quick front end as the manager sees it (TovuFrontEnds).
namespace TovuQuickFrontEnd {

/// A TovuQuickPresenter; `urlOpener` may be null.
std::unique_ptr<TovuSurveyPresenter> createPresenter(TovuUrlOpener *urlOpener);

/// Adds the presenter to TovuFrontEnds and lets the manager call the JavaScript
/// functions QML hands it. Returns true, to initialize a static constant.
bool install();

} // namespace TovuQuickFrontEnd
