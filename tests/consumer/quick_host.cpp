// A QML host's first use of TovuKit: `import TovuKit` works by linking
// tovukit_quick alone, a survey is presented over a Qt Quick window, and no
// part of Qt Widgets is loaded into the process.

#include <tovukit_io/quick/tovukit_quick.h>

#include <QFile>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>

#include <iostream>

namespace {

bool loads(const QByteArray &library)
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(library);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication application(argc, argv);
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(R"QML(
import QtQuick
import TovuKit
Window {
    width: 390; height: 844; visible: true
    readonly property int refusal: TovuNativeSurveyManager.PresentationRefusal.noHostWindow
}
)QML",
                      QUrl());
    auto *window = qobject_cast<QQuickWindow *>(component.create());
    if (!window) {
        std::cerr << "consumer-quick: " << component.errorString().toStdString() << '\n';
        return 1;
    }
    TovuSurvey survey{.id = "s1", .name = "Host check"};
    survey.questions.push_back(TovuQuestion{.id = "q1", .type = TovuQuestionType::singleTextBox, .title = "Why?"});
    auto &manager = TovuNativeSurveyManager::shared();
    manager.configure(survey);
    manager.presentSurvey(window);
    if (!manager.quickSheet() || !manager.quickSheet()->currentPage()) {
        std::cerr << "consumer-quick: no sheet over the window\n";
        return 1;
    }
    TovuLog::print("consumer-quick: sheet shown, refusal " + std::to_string(window->property("refusal").toInt()));
    TovuLog::print(loads("libQt6Widgets") ? "consumer-quick: Qt Widgets loaded" : "consumer-quick: no Qt Widgets");
    delete window;
    return 0;
}
