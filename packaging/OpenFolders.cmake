# Runs before the staged files are packed: makes the folders accessible to everyone, whatever the packer's umask.
cmake_minimum_required(VERSION 3.25)
file(CHMOD_RECURSE "${CPACK_TEMPORARY_INSTALL_DIRECTORY}"
     DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
