#include "reports/ReportFile.h"

#include "core/RunTimeError.h"

namespace {

void RaiseUnlessNone(FileFault fault)
{
    switch (fault) {
    case FileFault::None:
        return;
    case FileFault::AlreadyOpen:
        Raise(ErrorNumber::FileAlreadyOpen);
    case FileFault::FileNotFound:
        Raise(ErrorNumber::FileNotFound);
    case FileFault::PathNotFound:
        Raise(ErrorNumber::PathNotFound);
    case FileFault::Access:
        Raise(ErrorNumber::PathFileAccess);
    }
}

} // namespace

void NumberedFile::openForOutput(const std::string& path, Links links)
{
    RaiseUnlessNone(file.openForOutput(path, links));
}

void NumberedFile::openForInput(const std::string& path, Links links)
{
    RaiseUnlessNone(file.openForInput(path, links));
}

void NumberedFile::writeLine(const std::string& line) { RaiseUnlessNone(file.writeLine(line)); }

std::string NumberedFile::readLine()
{
    std::string line;
    RaiseUnlessNone(file.readLine(line));
    return line;
}
