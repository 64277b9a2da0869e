#pragma once

#include <httplib.h>
#include <nlohmann/json.hpp>

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdlib.h>
#include <string>

// Helpers for the dev-server tests: a temporary folder for data and config
// files, and an HTTP client on the server's loopback address.
namespace TovuDevServerTesting {

inline constexpr const char *demoKey = "tovu-demo-key";
inline constexpr const char *demoBearer = "Bearer tovu-demo-token";
// The bundled customer-satisfaction sample.
inline constexpr const char *sampleSurveyId = "03ce355f-163d-420a-9980-f630e7af337c";

class TemporaryFolder
{
public:
    TemporaryFolder()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "tovu-devserver-test-XXXXXX").string();
        if (mkdtemp(pattern.data()))
            m_path = pattern;
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        if (!m_path.empty())
            std::filesystem::remove_all(m_path, ignored);
    }
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    const std::filesystem::path &path() const { return m_path; }

    std::filesystem::path write(const std::string &name, const std::string &contents) const
    {
        const std::filesystem::path file = m_path / name;
        std::ofstream(file, std::ios::binary) << contents;
        return file;
    }

private:
    std::filesystem::path m_path;
};

inline std::unique_ptr<httplib::Client> client(const std::string &url)
{
    auto c = std::make_unique<httplib::Client>(url);
    c->set_connection_timeout(std::chrono::seconds(10));
    c->set_read_timeout(std::chrono::seconds(30));
    return c;
}

inline nlohmann::json parseJson(const std::string &text)
{
    return nlohmann::json::parse(text, nullptr, false);
}

inline std::string messageOf(const httplib::Result &result)
{
    if (!result)
        return "<no response: " + httplib::to_string(result.error()) + ">";
    const nlohmann::json body = parseJson(result->body);
    if (body.is_object() && body.contains("message") && body["message"].is_string())
        return body["message"].get<std::string>();
    return "<no message in " + result->body + ">";
}

inline std::string readFile(const std::filesystem::path &path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

} // namespace TovuDevServerTesting
