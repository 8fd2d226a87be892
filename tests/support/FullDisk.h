#pragma once

#include <csignal>
#include <sys/resource.h>

/// During its lifetime no file of this process can grow, as on a full disk.
class FullDisk
{
public:
    FullDisk()
    {
        std::signal(SIGXFSZ, SIG_IGN); // makes a write fail instead of ending the process
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit none{.rlim_cur = 0, .rlim_max = before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &none);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before); }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit before{};
};
