#include "platform/Registry.h"

#ifdef _WIN32

#include <windows.h>

namespace {

class WindowsRegistry : public Registry
{
public:
    std::optional<Key> RegOpenKeyExA(std::uint32_t root, const std::string& name, std::uint32_t options,
                                     std::uint32_t rights) override
    {
        // A predefined root is a sign-extended 32-bit number, whatever the width of a handle.
        const auto rootKey =
            reinterpret_cast<HKEY>(static_cast<std::intptr_t>(static_cast<std::int32_t>(root)));
        HKEY key = nullptr;
        if (::RegOpenKeyExA(rootKey, name.c_str(), options, rights, &key) != ERROR_SUCCESS)
            return std::nullopt;
        return reinterpret_cast<Key>(key);
    }

    std::optional<RegistryValue> RegQueryValueExA(Key key, const std::string& name, std::size_t room) override
    {
        RegistryValue value;
        value.bytes.resize(room);
        auto length = static_cast<DWORD>(room);
        DWORD type = 0;
        if (::RegQueryValueExA(reinterpret_cast<HKEY>(key), name.c_str(), nullptr, &type,
                               reinterpret_cast<BYTE*>(value.bytes.data()), &length) != ERROR_SUCCESS)
            return std::nullopt;
        value.type = type;
        value.bytes.resize(length);
        return value;
    }

    void RegCloseKey(Key key) override { ::RegCloseKey(reinterpret_cast<HKEY>(key)); }
};

using ThisMachine = WindowsRegistry;

} // namespace

#else

using ThisMachine = Registry;

#endif

Registry& MachineRegistry()
{
    static ThisMachine registry;
    return registry;
}
