// Runs a fuzz target over saved inputs where libFuzzer is not available (g++
// builds): every file named on the command line, and every file directly inside
// a named directory, is passed once to LLVMFuzzerTestOneInput. A target that
// finds a broken invariant aborts, which fails the run.
//
//     fuzz_survey_model fuzz/corpus/fuzz_survey_model fuzz/regressions/fuzz_survey_model
//
// Arguments that start with '-' are libFuzzer options (-runs=0, -max_len=…);
// they are ignored so one command line works with both kinds of build.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace {

namespace fs = std::filesystem;

// Directory order is unspecified; a sorted list makes a failing run repeatable.
bool collectInputs(const fs::path &path, std::vector<fs::path> &inputs)
{
    std::error_code error;
    if (fs::is_regular_file(path, error)) {
        inputs.push_back(path);
        return true;
    }
    if (!fs::is_directory(path, error)) {
        std::fprintf(stderr, "replay: %s: no such file or directory\n", path.c_str());
        return false;
    }
    std::vector<fs::path> files;
    for (const fs::directory_entry &entry : fs::directory_iterator(path, error)) {
        const std::string name = entry.path().filename().string();
        if (entry.is_regular_file(error) && !name.starts_with('.'))
            files.push_back(entry.path());
    }
    if (error) {
        std::fprintf(stderr, "replay: %s: %s\n", path.c_str(), error.message().c_str());
        return false;
    }
    std::sort(files.begin(), files.end());
    inputs.insert(inputs.end(), files.begin(), files.end());
    return true;
}

bool replay(const fs::path &path)
{
    std::ifstream stream(path, std::ios::binary);
    if (!stream) {
        std::fprintf(stderr, "replay: %s: cannot be read\n", path.c_str());
        return false;
    }
    const std::vector<char> bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    // An exactly sized copy, so a sanitizer build notices a read past the end.
    const auto copy = std::make_unique_for_overwrite<std::uint8_t[]>(bytes.size());
    std::copy(bytes.begin(), bytes.end(), copy.get());
    std::fprintf(stderr, "replay: %s (%zu bytes)\n", path.c_str(), bytes.size());
    LLVMFuzzerTestOneInput(copy.get(), bytes.size());
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    std::vector<fs::path> inputs;
    bool ok = true;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (!argument.starts_with('-'))
            ok = collectInputs(fs::path(argument), inputs) && ok;
    }
    if (!ok)
        return 2;
    if (inputs.empty()) {
        std::fprintf(stderr, "replay: no inputs; name files or directories of saved inputs\n");
        return 2;
    }
    for (const fs::path &input : inputs) {
        if (!replay(input))
            return 2;
    }
    std::fprintf(stderr, "replay: %zu inputs passed\n", inputs.size());
    return 0;
}
