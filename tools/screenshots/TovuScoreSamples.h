#pragma once

#include "TovuQuestionSamples.h"

#include <vector>

/// The NPS and multi-NPS pages tovu-screenshots shows.
class TovuScoreSamples
{
public:
    static std::vector<TovuQuestionSamples::Shot> shots();

    TovuScoreSamples() = delete;
};
