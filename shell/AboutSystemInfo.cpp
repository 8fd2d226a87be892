// How the about box starts the system information viewer. No control of the form calls this.

#include "platform/Desktop.h"
#include "platform/forms/MsgBox.h"
#include "shell/About.h"

#include <QFileInfo>

using namespace forms;

namespace {

constexpr const char* viewerKey = R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)";
constexpr const char* folderKey = R"(SOFTWARE\Microsoft\Shared Tools Location)";
constexpr std::size_t room = 1024; // in characters, for a value

/// The decimal text of a little-endian number, converted by way of its hexadecimal digits.
std::string decimalText(const std::string& bytes)
{
    constexpr int hexadecimal = 16;
    const std::string highestFirst(bytes.rbegin(), bytes.rend());
    return std::to_string(QByteArray::fromStdString(highestFirst).toHex().toUInt(nullptr, hexadecimal));
}

/// Closes a key on every path, even if it was never opened.
class OpenKey
{
public:
    OpenKey(Registry& itsRegistry, std::uint32_t root, const std::string& name)
        : registry(itsRegistry), key(itsRegistry.RegOpenKeyExA(root, name, 0, KEY_ALL_BUT_LINKS))
    {}
    ~OpenKey() { registry.RegCloseKey(key.value_or(0)); }
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;

    std::optional<RegistryValue> value(const std::string& name) const
    {
        return key ? registry.RegQueryValueExA(*key, name, room) : std::nullopt;
    }

private:
    Registry& registry;
    std::optional<Registry::Key> key;
};

} // namespace

bool About::GetKeyValue(std::uint32_t KeyRoot, const std::string& KeyName, const std::string& SubKeyRef,
                        std::string& KeyVal, Registry& registry)
{
    const OpenKey key(registry, KeyRoot, KeyName);
    std::optional<RegistryValue> value = key.value(SubKeyRef);
    if (!value) {
        KeyVal.clear();
        return false;
    }
    std::string& bytes = value->bytes;
    if (!bytes.empty() && bytes.back() == '\0')
        bytes.pop_back(); // in a number, this is a highest byte of zero
    if (value->type == RegistryValue::String)
        KeyVal = bytes;
    else if (value->type == RegistryValue::Number)
        KeyVal = decimalText(bytes);
    return true;
}

void About::StartSysInfo(Registry& registry)
{
    std::string path;
    bool found = GetKeyValue(HKEY_LOCAL_MACHINE, viewerKey, "PATH", path, registry);
    if (!found && GetKeyValue(HKEY_LOCAL_MACHINE, folderKey, "MSINFO", path, registry)) {
        path += R"(\MSINFO32.EXE)";
        found = QFileInfo::exists(QString::fromStdString(path));
    }
    if (!found || !StartProgramFile(path))
        MsgBox("System Information Is Unavailable At This Time");
}
