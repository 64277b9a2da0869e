#include <tovukit_io/core/TovuSurveyPresenter.h>

TovuSurveyPresenter::~TovuSurveyPresenter() = default;

void TovuSurveyPresenter::prepare(const TovuSurvey &, TovuPageRequest) { }
