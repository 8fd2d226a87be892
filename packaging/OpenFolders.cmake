# Run before the staged files become a package: everyone can enter its folders, whatever the umask of who packs it.
cmake_minimum_required(VERSION 3.25)
file(CHMOD_RECURSE "${CPACK_TEMPORARY_INSTALL_DIRECTORY}"
     DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
