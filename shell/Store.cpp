#include "shell/Store.h"

#include "core/NumberText.h"
#include "platform/SettingsStore.h"

namespace {
constexpr auto application = "Dunmoor";
constexpr auto section = "Settings";
} // namespace

std::string StoredText(const std::string& key, const std::string& defaultText)
{
    return GetSetting(application, section, key, defaultText);
}

std::string StoredText(const std::string& key, double defaultNumber)
{
    return StoredText(key, PlainText(defaultNumber)); // in the locale's form, as the user would have typed it
}

void StoreText(const std::string& key, const std::string& text)
{
    SaveSetting(application, section, key, text);
}
