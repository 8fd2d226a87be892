# Compiles the help file in the folder BOOK, where all its sources lie.

# The compiler writes the project's folder into the map of topics. Named this way it is the same everywhere.
set(folder /proc/self/cwd)
execute_process(COMMAND ${CHMCMD} ${folder}/dunmoor.hhp WORKING_DIRECTORY ${BOOK}
                OUTPUT_VARIABLE said ERROR_VARIABLE said RESULT_VARIABLE result)
# It ends with 0 whatever it finds.
if(NOT result EQUAL 0 OR said MATCHES "Error|Warning|corrupt|not found" OR NOT EXISTS ${BOOK}/dunmoor.chm)
  message(FATAL_ERROR "The help file does not compile:\n${said}")
endif()

execute_process(COMMAND ${CHMLS} extract dunmoor.chm /\#STRINGS strings WORKING_DIRECTORY ${BOOK}
                OUTPUT_QUIET ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${TOPIC_NAMES} dunmoor.chm strings ${folder}/ WORKING_DIRECTORY ${BOOK}
                COMMAND_ERROR_IS_FATAL ANY)
