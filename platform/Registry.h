#pragma once

#include <cstdint>
#include <optional>
#include <string>

constexpr std::uint32_t HKEY_LOCAL_MACHINE = 0x80000002; ///< machine-wide root
constexpr std::uint32_t KEY_ALL_BUT_LINKS = 0x2003f;     ///< access rights for opening a key

/// A registry value as stored: a text may end in a zero byte; a number is little-endian.
struct RegistryValue
{
    enum Type : std::uint32_t
    {
        String = 1,
        Number = 4, ///< 32 bits
    };
    std::uint32_t type = String;
    std::string bytes;
};

/// The registry calls that the program makes. This one is empty, for systems without a registry.
class Registry
{
public:
    using Key = std::uintptr_t; ///< 0 means no key

    virtual ~Registry() = default;

    /// @return nothing if the key doesn't exist or access is denied
    virtual std::optional<Key> RegOpenKeyExA(std::uint32_t /*root*/, const std::string& /*name*/,
                                             std::uint32_t /*options*/, std::uint32_t /*rights*/)
    {
        return std::nullopt;
    }
    /// @return nothing if the value doesn't exist or is too long for the buffer
    virtual std::optional<RegistryValue> RegQueryValueExA(Key /*key*/, const std::string& /*name*/,
                                                          std::size_t /*room*/)
    {
        return std::nullopt;
    }
    virtual void RegCloseKey(Key /*key*/) {}
};

/// This machine's registry.
Registry& MachineRegistry();
