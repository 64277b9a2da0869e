#include "TovuSurveyCatalog.h"

#include "TovuDevJson.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <system_error>

std::expected<TovuSurveyCatalog, std::string> TovuSurveyCatalog::load(const std::filesystem::path &folder)
{
    std::error_code error;
    if (!std::filesystem::is_directory(folder, error))
        return std::unexpected(folder.string() + ": not a folder");

    std::vector<std::filesystem::path> files;
    for (const auto &entry : std::filesystem::directory_iterator(folder, error)) {
        if (entry.is_regular_file() && entry.path().extension() == ".json")
            files.push_back(entry.path());
    }
    if (error)
        return std::unexpected(folder.string() + ": " + error.message());
    std::ranges::sort(files);

    TovuSurveyCatalog catalog;
    for (const std::filesystem::path &file : files) {
        std::ifstream in(file, std::ios::binary);
        std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
        if (!in && !in.eof()) {
            catalog.m_warnings.push_back(file.string() + ": cannot be read");
            continue;
        }
        const auto json = TovuDevJson::parse(text);
        if (!json) {
            catalog.m_warnings.push_back(file.string() + ": " + json.error());
            continue;
        }
        const auto data = json->find("data");
        if (!json->is_object() || data == json->end() || !data->is_object() || !data->contains("uuid")
            || !data->at("uuid").is_string()) {
            catalog.m_warnings.push_back(file.string() + ": no text data.uuid");
            continue;
        }
        TovuSurveyDocument document;
        document.uuid = data->at("uuid").get<std::string>();
        if (const auto title = data->find("displayTitle"); title != data->end() && title->is_string())
            document.displayTitle = title->get<std::string>();
        document.stem = file.stem().string();
        document.text = std::move(text);
        if (catalog.find(document.uuid)) {
            catalog.m_warnings.push_back(file.string() + ": data.uuid " + document.uuid
                                         + " is already served from an earlier file");
            continue;
        }
        catalog.m_documents.push_back(std::move(document));
    }
    return catalog;
}

const TovuSurveyDocument *TovuSurveyCatalog::find(const std::string &uuid) const
{
    const auto found = std::ranges::find(m_documents, uuid, &TovuSurveyDocument::uuid);
    return found == m_documents.end() ? nullptr : &*found;
}
