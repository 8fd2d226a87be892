#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

/// Uses a temporary settings folder during its lifetime, so that no measurement reads or writes the user's
/// settings.
class ScratchSettings
{
public:
    ScratchSettings()
    {
        if (mkdtemp(folder.data()) == nullptr)
            throw std::runtime_error("cannot make " + folder);
        for (const char* variable : {"XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
            setenv(variable, folder.c_str(), 1);
    }
    ~ScratchSettings()
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }
    ScratchSettings(const ScratchSettings&) = delete;
    ScratchSettings& operator=(const ScratchSettings&) = delete;

private:
    std::string folder = (std::filesystem::temp_directory_path() / "dunmoor-bench-XXXXXX").string();
};

/// Paints windows to memory if there is no display.
inline void UseOffscreenWithoutDisplay()
{
    if (std::getenv("DISPLAY") == nullptr && std::getenv("WAYLAND_DISPLAY") == nullptr)
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
}

/// The display in use, for the heading of the results.
inline const char* DisplayInUse()
{
    const char* const platform = std::getenv("QT_QPA_PLATFORM");
    return platform == nullptr ? "the desktop" : platform;
}
