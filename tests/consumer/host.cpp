// A host application's first use of TovuKit: decode a survey document and
// convert it, through the umbrella header only.

#include <tovukit_io/tovukit_io.h>

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

    TovuNetworkService service;
    service.configure("key", "eu", TovuEnvironment::uat);
    TovuLog::print("consumer: " + service.apiBaseURL());
    return 0;
}
