// tovu-inspect: checks survey documents the way the library will read them.
//
//   tovu-inspect [--json] FILE...
//
// Prints an outline of each converted survey (or, with --json, the survey
// model as JSON), or the decoding error with the path of the offending value.
// Exits 0 only when every file decodes.

#include "TovuSurveyOutline.h"

#include <tovukit_io/model/TovuDecode.h>
#include <tovukit_io/network/TovuAPISurveyData.h>

#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

std::optional<std::string> readFile(const std::string &path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return std::nullopt;
    std::ostringstream contents;
    contents << in.rdbuf();
    if (in.bad())
        return std::nullopt;
    return std::move(contents).str();
}

bool inspect(const std::string &path, bool asJson)
{
    const std::optional<std::string> text = readFile(path);
    if (!text) {
        std::cerr << path << ": error: cannot read the file\n";
        return false;
    }
    const TovuResult<TovuAPIMainResponse> document = tovuDecode<TovuAPIMainResponse>(*text);
    if (!document) {
        std::cerr << path << ": error: " << document.error().localizedDescription() << '\n';
        return false;
    }
    const TovuSurvey survey = document->data.toNativeSurvey();
    if (asJson) {
        const TovuResult<std::string> json = tovuEncode(survey);
        if (!json) {
            std::cerr << path << ": error: " << json.error().localizedDescription() << '\n';
            return false;
        }
        std::cout << *json << '\n';
    } else {
        std::cout << path << '\n' << TovuSurveyOutline::render(survey) << '\n';
    }
    return true;
}

void printUsage(std::ostream &out)
{
    out << "usage: tovu-inspect [--json] FILE...\n"
           "Decodes survey documents as the backend sends them and prints the survey\n"
           "TovuKit shows: an outline, or with --json the converted survey model.\n";
}

} // namespace

int main(int argc, char **argv)
{
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    bool asJson = false;
    std::vector<std::string> files;
    for (const std::string_view argument : arguments) {
        if (argument == "--help" || argument == "-h") {
            printUsage(std::cout);
            return 0;
        }
        if (argument == "--json")
            asJson = true;
        else
            files.emplace_back(argument);
    }
    if (files.empty()) {
        printUsage(std::cerr);
        return 2;
    }
    bool allDecoded = true;
    for (const std::string &file : files)
        allDecoded = inspect(file, asJson) && allDecoded;
    return allDecoded ? 0 : 1;
}
