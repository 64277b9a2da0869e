#pragma once

// What the page tests share: a page shown at phone width in an active host window,
// with everything it reports recorded in order.

#include <tovukit_io/model/TovuAnswer.h>

#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace TovuPageTesting {

template<class View>
struct Shown {
    QWidget host;
    View *view;
    /// Every answer, in order.
    std::vector<TovuAnswer> answers;
    /// Every report tagged with its callback ("answer", or what a test adds), in order.
    std::vector<std::pair<std::string, TovuAnswer>> calls;

    /// The page is `350 - 2 * margin` wide.
    explicit Shown(View *page, int margin = 0)
        : view(page)
    {
        auto *layout = new QVBoxLayout(&host);
        layout->setContentsMargins(margin, margin, margin, margin);
        layout->addWidget(view);
        layout->addStretch();
        host.resize(350, 900);
        host.show();
        // Fields take focus only in the active window.
        host.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&host));
        view->onAnswer = [this](const TovuAnswer &answer) {
            answers.push_back(answer);
            calls.emplace_back("answer", answer);
        };
    }
};

inline void click(QWidget *widget)
{
    QTest::mouseClick(widget, Qt::LeftButton);
}

} // namespace TovuPageTesting
