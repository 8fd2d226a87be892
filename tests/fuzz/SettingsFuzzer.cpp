// Any text as the settings file. What is saved into it is read back.

#include "platform/SettingsStore.h"
#include "tests/fuzz/Fuzz.h"

#include <QByteArray>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

/// A folder for settings that exists as long as the process.
class SettingsFolder
{
public:
    SettingsFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "fuzz-settings-XXXXXX").string();
        Require(mkdtemp(name.data()) != nullptr);
        folder = name;
        qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(name));
    }
    ~SettingsFolder() { std::filesystem::remove_all(folder); }
    SettingsFolder(const SettingsFolder&) = delete;
    SettingsFolder& operator=(const SettingsFolder&) = delete;

    std::filesystem::path fileOf(const std::string& application) const
    {
        return folder / (application + ".ini");
    }

private:
    std::filesystem::path folder;
};

/// Control characters make a store unreadable for good, which has its own tests.
std::string withoutControls(std::string_view bytes)
{
    std::string text(bytes);
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c >= 0 && c < ' ' && c != '\n'; }, ' ');
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const SettingsFolder folder;
    static long runs = 0;
    FuzzInput input(data, size);
    const std::string application =
        "Fuzzed" + std::to_string(++runs); // the toolkit remembers a file by its name
    const std::filesystem::path path = folder.fileOf(application);
    std::ofstream(path, std::ios::binary) << withoutControls(input.rest());

    Require(UnreadableStore(application).empty());
    const std::string before = GetSetting(application, "Settings", "Metric_Units", "none");
    SaveSetting(application, "Settings", "Pressure_psi", "14,696 \"x\"");
    Require(GetSetting(application, "Settings", "Pressure_psi", "none") == "14,696 \"x\"");
    Require(GetSetting(application, "Settings", "Metric_Units", "none") == before);
    std::filesystem::remove(path);
    return 0;
}
