#pragma once

#include "TovuQuestionSamples.h"

#include <vector>

/// The rating and multi-rating pages tovu-screenshots shows.
class TovuRatingSamples
{
public:
    static std::vector<TovuQuestionSamples::Shot> shots();

    TovuRatingSamples() = delete;
};
