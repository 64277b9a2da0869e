#pragma once

#include <tovukit_io/model/TovuSurvey.h>

#include <string>

/// A readable outline of a converted survey: what a survey author checks
/// before publishing a document (order, types, required flags, options,
/// follow-ups, pages).
class TovuSurveyOutline
{
public:
    static std::string render(const TovuSurvey &survey);
};
