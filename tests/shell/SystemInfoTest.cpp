// Reading the registry as text, and starting the system information viewer.

#include "shell/About.h"
#include "tests/support/ProgramTest.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <map>

namespace {

constexpr const char* viewerKey = R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)";
constexpr const char* folderKey = R"(SOFTWARE\Microsoft\Shared Tools Location)";
constexpr std::uint32_t binary = 3;

/// A registry with a few values that records the requests.
class FilledRegistry : public Registry
{
public:
    std::map<std::string, std::map<std::string, RegistryValue>> keys;
    std::vector<std::string> calls;

    std::optional<Key> RegOpenKeyExA(std::uint32_t root, const std::string& name, std::uint32_t options,
                                     std::uint32_t rights) override
    {
        calls.push_back("open " + name);
        EXPECT_EQ(root, 0x80000002U);
        EXPECT_EQ(options, 0U);
        EXPECT_EQ(rights, 0x2003fU);
        const auto found = keys.find(name);
        if (found == keys.end())
            return std::nullopt;
        open = &found->second;
        return 7;
    }

    std::optional<RegistryValue> RegQueryValueExA(Key key, const std::string& name, std::size_t room) override
    {
        calls.push_back("query " + name);
        EXPECT_EQ(key, 7U);
        EXPECT_EQ(room, 1024U);
        const auto found = open->find(name);
        if (found == open->end() || found->second.bytes.size() > room)
            return std::nullopt;
        return found->second;
    }

    void RegCloseKey(Key key) override { calls.push_back("close " + std::to_string(key)); }

private:
    std::map<std::string, RegistryValue>* open = nullptr;
};

class SystemInfo : public ProgramTest
{
protected:
    void SetUp() override { start(); }

    bool read(const std::string& key, const std::string& name)
    {
        return About::GetKeyValue(HKEY_LOCAL_MACHINE, key, name, text, registry);
    }

    std::string read(std::uint32_t type, const std::string& bytes)
    {
        registry.keys["Key"]["Name"] = {type, bytes};
        EXPECT_TRUE(read("Key", "Name"));
        return text;
    }

    /// A program that creates a file when it runs.
    QString program(const QString& path)
    {
        QFile script(path);
        EXPECT_TRUE(script.open(QIODevice::WriteOnly));
        script.write(("#!/bin/sh\n: > '" + ran() + "'\n").toUtf8());
        script.close();
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return path;
    }
    QString ran() const { return folder.filePath("ran"); }
    bool programRan() const
    {
        return QTest::qWaitFor([this] { return QFile::exists(ran()); }, 10'000);
    }

    void expectUnavailable()
    {
        About::StartSysInfo(registry);
        EXPECT_EQ(user.messages,
                  (std::vector<Message>{{"System Information Is Unavailable At This Time", "Dunmoor"}}));
    }

    using Calls = std::vector<std::string>;

    FilledRegistry registry;
    std::string text = "as before";
    QTemporaryDir folder;
};

} // namespace

TEST_F(SystemInfo, ReadsAStringAsItStandsWithoutItsZeroByte)
{
    EXPECT_EQ(read(RegistryValue::String, std::string("C:\\Tools\0", 9)), "C:\\Tools");
    EXPECT_EQ(read(RegistryValue::String, "C:\\Tools"), "C:\\Tools");
    EXPECT_EQ(read(RegistryValue::String, std::string("a\0\0", 3)), std::string("a\0", 2))
        << "one byte alone";
    EXPECT_EQ(read(RegistryValue::String, ""), "");
}

TEST_F(SystemInfo, ReadsANumberInDecimal)
{
    EXPECT_EQ(read(RegistryValue::Number, std::string("\x05\0\0\0", 4)), "5");
    EXPECT_EQ(read(RegistryValue::Number, std::string("\x39\x30\0\0", 4)), "12345");
    EXPECT_EQ(read(RegistryValue::Number, "\x0a\x0b\x0c\x7f"), std::to_string(0x7f0c0b0a));
    EXPECT_EQ(read(RegistryValue::Number, std::string("\0\0\0\0", 4)), "0");
    EXPECT_EQ(read(RegistryValue::Number, "\xff\xff\xff\xff"), "4294967295");
}

TEST_F(SystemInfo, LeavesTheTextAloneForAValueOfAnotherType) { EXPECT_EQ(read(binary, "abc"), "as before"); }

TEST_F(SystemInfo, ReadsNothingWhereTheKeyOrTheValueIsMissing)
{
    EXPECT_FALSE(read("Key", "Name"));
    EXPECT_EQ(text, "");
    EXPECT_EQ(registry.calls, (Calls{"open Key", "close 0"}));

    registry.calls.clear();
    text = "as before";
    registry.keys["Key"] = {};
    EXPECT_FALSE(read("Key", "Name"));
    EXPECT_EQ(text, "");
    EXPECT_EQ(registry.calls, (Calls{"open Key", "query Name", "close 7"}));
}

TEST_F(SystemInfo, ReadsNothingWhereAValueIsLongerThanItsRoom)
{
    registry.keys["Key"]["Name"] = {RegistryValue::String, std::string(1025, 'x')};
    EXPECT_FALSE(read("Key", "Name"));
    EXPECT_EQ(text, "");
}

TEST_F(SystemInfo, ReadsAValueThatFillsItsRoom)
{
    EXPECT_EQ(read(RegistryValue::String, std::string(1024, 'x')), std::string(1024, 'x'));
}

TEST_F(SystemInfo, ClosesTheKeyAfterReading)
{
    read(RegistryValue::String, "text");
    EXPECT_EQ(registry.calls, (Calls{"open Key", "query Name", "close 7"}));
}

TEST_F(SystemInfo, StartsTheViewerThatTheRegistryNames)
{
    registry.keys[viewerKey]["PATH"] = {RegistryValue::String,
                                        program(folder.filePath("viewer")).toStdString()};
    About::StartSysInfo(registry);
    EXPECT_TRUE(programRan());
    EXPECT_EQ(registry.calls.size(), 3U) << "the second place isn't asked for";
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(SystemInfo, IsUnavailableWhereTheViewerThatTheRegistryNamesDoesNotStart)
{
    registry.keys[viewerKey]["PATH"] = {RegistryValue::String, folder.filePath("none").toStdString()};
    expectUnavailable();
    EXPECT_EQ(registry.calls.size(), 3U) << "the second place isn't asked for";
}

TEST_F(SystemInfo, StartsTheViewerInTheToolsFolderWhereThatHasIt)
{
    registry.keys[folderKey]["MSINFO"] = {RegistryValue::String, folder.filePath("tools").toStdString()};
    program(folder.filePath("tools") + "\\MSINFO32.EXE");
    About::StartSysInfo(registry);
    EXPECT_TRUE(programRan());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(SystemInfo, IsUnavailableWhereTheToolsFolderHasNoViewer)
{
    registry.keys[folderKey]["MSINFO"] = {RegistryValue::String, folder.filePath("tools").toStdString()};
    expectUnavailable();
}

TEST_F(SystemInfo, IsUnavailableWhereTheRegistryNamesNone) { expectUnavailable(); }

TEST_F(SystemInfo, IsUnavailableOnASystemWithoutARegistry)
{
    About::StartSysInfo();
    EXPECT_EQ(user.messages.size(), 1U);
    EXPECT_FALSE(About::GetKeyValue(HKEY_LOCAL_MACHINE, viewerKey, "PATH", text));
    EXPECT_EQ(text, "");
}
