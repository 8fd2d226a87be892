#include "shell/Store.h"

#include "core/NumberText.h"
#include "platform/SettingsStore.h"
#include "platform/forms/MsgBox.h"

#include <utility>

namespace {
constexpr auto application = "Dunmoor";
constexpr auto section = "Settings";

void warnOnceOfUnreadableStore()
{
    static bool isDone = false;
    const std::string path = UnreadableStore(application);
    if (path.empty() || std::exchange(isDone, true))
        return;
    forms::MsgBox(
        "The settings can't be read:\n" + path +
        "\nis not a text file of at most 1 MB. It is left as it is, and the default settings apply.");
}

} // namespace

std::string StoredText(const std::string& key, const std::string& defaultText)
{
    warnOnceOfUnreadableStore();
    return GetSetting(application, section, key, defaultText);
}

std::string StoredText(const std::string& key, double defaultNumber)
{
    return StoredText(key, PlainText(defaultNumber)); // in the locale's format, as the user would type it
}

void StoreText(const std::string& key, const std::string& text)
{
    warnOnceOfUnreadableStore();
    SaveSetting(application, section, key, text);
}
