#pragma once

#include <expected>
#include <filesystem>
#include <string>
#include <vector>

/// One survey document of the data folder.
struct TovuSurveyDocument {
    std::string uuid; ///< data.uuid
    std::string displayTitle; ///< data.displayTitle, empty when it is not text
    std::string stem; ///< the file name without ".json"
    std::string text; ///< the file's bytes, served unchanged
};

/// The survey documents the server serves, read once at start-up from the
/// *.json files of a folder (in file-name order). A file that is not a JSON
/// object with a text data.uuid is skipped with a warning; a document that
/// the library would refuse is still served, so clients can be tried on it.
class TovuSurveyCatalog
{
public:
    static std::expected<TovuSurveyCatalog, std::string> load(const std::filesystem::path &folder);

    const std::vector<TovuSurveyDocument> &documents() const { return m_documents; }
    const TovuSurveyDocument *find(const std::string &uuid) const;
    /// Why files were skipped, one line each.
    const std::vector<std::string> &warnings() const { return m_warnings; }

private:
    std::vector<TovuSurveyDocument> m_documents;
    std::vector<std::string> m_warnings;
};
