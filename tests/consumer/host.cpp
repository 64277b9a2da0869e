// A host application's first use of TovuKit: decode a survey document and
// convert it, through the umbrella header only.

#include <tovukit_io/tovukit_io.h>

#include <QCoreApplication>

#include <iostream>

int main()
{
    const auto document
        = tovuDecode<TovuAPIMainResponse>(R"({"data": {"uuid": "s1", "displayTitle": "Host check", "blocks": []}})");
    if (!document) {
        std::cerr << "consumer: " << document.error().localizedDescription() << '\n';
        return 1;
    }
    const TovuSurvey survey = document->data.toNativeSurvey();
    TovuLog::print("consumer: " + survey.questions.back().title);

    // The library's texts in other languages are inside it: nothing ships beside the host.
    int argc = 1;
    char name[] = "tovu-host";
    char *argv[] = {name, nullptr};
    const QCoreApplication application(argc, argv);
    TovuTranslations::setLanguage(QLocale(QLocale::German));
    TovuLog::print("consumer: " + document->data.toNativeSurvey().questions.back().title);

    TovuNetworkService service;
    service.configure("key", "eu", TovuEnvironment::uat);
    TovuLog::print("consumer: " + service.apiBaseURL());
    return 0;
}
