#pragma once

#include <cstdint>
#include <optional>
#include <string>

constexpr std::uint32_t HKEY_LOCAL_MACHINE = 0x80000002; ///< the machine-wide root
constexpr std::uint32_t KEY_ALL_BUT_LINKS = 0x2003f;     ///< the rights that a key is opened with

/// A value of the registry as it is stored: a text may end in a zero byte, a number has its lowest byte
/// first.
struct RegistryValue
{
    enum Type : std::uint32_t
    {
        String = 1,
        Number = 4, ///< of 32 bits
    };
    std::uint32_t type = String;
    std::string bytes;
};

/// What the program asks of the machine's registry.
class Registry
{
public:
    using Key = std::uintptr_t; ///< 0 is no key

    virtual ~Registry() = default;

    /// @return nothing where the key doesn't exist or may not be opened
    virtual std::optional<Key> RegOpenKeyExA(std::uint32_t root, const std::string& name,
                                             std::uint32_t options, std::uint32_t rights) = 0;
    /// @return nothing where the value doesn't exist or is longer than the room for it
    virtual std::optional<RegistryValue> RegQueryValueExA(Key key, const std::string& name,
                                                          std::size_t room) = 0;
    virtual void RegCloseKey(Key key) = 0;
};

/// The registry of this machine; one without any key, where the system has none.
Registry& MachineRegistry();
