#include "reports/ReportFolders.h"

#include "core/RunTimeError.h"
#include "platform/WorkFolders.h"

namespace {

std::string MadeFolder(const std::string& name)
{
    std::string folder = WorkFolder(ReportsBase(), name);
    if (!FolderExists(folder) && !MakeFolder(folder))
        Raise(ErrorNumber::PathFileAccess);
    return folder;
}

} // namespace

std::string DataFolder() { return MadeFolder("data"); }
std::string TempFolder() { return MadeFolder("tempdata"); }
