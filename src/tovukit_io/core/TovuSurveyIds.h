#pragma once

#include <string>

/// A collector id for TovuNativeSurveyManager::configure(): the backend
/// resolves it to the survey it serves.
struct TovuCollectorId {
    std::string value;
};

/// A survey id for TovuNativeSurveyManager::configure(): that survey is shown.
struct TovuSurveyId {
    std::string value;
};
