#pragma once

// What the view-model tests share: a plain QGuiApplication for the whole program
// (the models serve Qt Quick apps too, where no widget can exist), a check for the
// random ids answers carry, and a recorder of what a model reports.

#include <tovukit_io/viewmodel/TovuQuestionViewModel.h>

#include <QGuiApplication>
#include <QRegularExpression>
#include <QString>

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace TovuViewModelTesting {

class GuiApplicationOnly : public testing::Environment
{
public:
    void SetUp() override
    {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        m_application = std::make_unique<QGuiApplication>(m_argc, m_argv.data());
    }
    void TearDown() override { m_application.reset(); }

private:
    int m_argc = 1;
    char m_name[5] = "test";
    std::array<char *, 2> m_argv{m_name, nullptr};
    std::unique_ptr<QGuiApplication> m_application;
};

// Registered once per test program that includes this header.
inline const testing::Environment *const guiApplication = testing::AddGlobalTestEnvironment(new GuiApplicationOnly);

inline bool isUpperCaseUuid(const std::string &text)
{
    static const QRegularExpression uuid(
        QStringLiteral("^[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}$"));
    return uuid.match(QString::fromStdString(text)).hasMatch();
}

// Every answer a model reports, and how often it asked for a shake.
struct Recorder {
    std::vector<TovuAnswer> answers;
    int shakes = 0;

    void attach(TovuQuestionViewModel &model)
    {
        model.onAnswer = [this](const TovuAnswer &answer) {
            answers.push_back(answer);
        };
        QObject::connect(&model, &TovuQuestionViewModel::shakeRequested, [this] { ++shakes; });
    }
};

} // namespace TovuViewModelTesting
