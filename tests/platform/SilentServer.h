#pragma once

#include <gtest/gtest.h>

#include <QString>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

/// Listens at a path of the file system. The system accepts for it; nobody reads or writes.
class SilentServer
{
public:
    explicit SilentServer(const QString& path) : socket(::socket(AF_UNIX, SOCK_STREAM, 0))
    {
        sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
        path.toLocal8Bit().toStdString().copy(address.sun_path, sizeof address.sun_path - 1);
        EXPECT_EQ(bind(socket, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
        EXPECT_EQ(listen(socket, 100), 0);
    }
    ~SilentServer() { close(socket); }
    SilentServer(const SilentServer&) = delete;
    SilentServer& operator=(const SilentServer&) = delete;

protected:
    int socket;
};
