# Compiles the help project SOURCES/PROJECT.hhp to FOLDER/PROJECT.chm, with PICTURES in its folder pictures/.
file(REMOVE_RECURSE ${FOLDER})
file(COPY ${SOURCES}/ DESTINATION ${FOLDER})
if(PICTURES)
  file(COPY ${PICTURES} DESTINATION ${FOLDER}/pictures)
endif()

# The compiler writes the project's folder into the topic map. This name is the same on every machine.
set(name_of_folder /proc/self/cwd)
execute_process(COMMAND ${CHMCMD} ${name_of_folder}/${PROJECT}.hhp WORKING_DIRECTORY ${FOLDER}
                OUTPUT_VARIABLE said ERROR_VARIABLE said)
# The compiler exits with 0 even after an error.
if(NOT EXISTS ${FOLDER}/${PROJECT}.chm OR (NOT MAY_WARN AND said MATCHES "Error|Warning|corrupt|not found"))
  message(FATAL_ERROR "The help file does not compile:\n${said}")
endif()

execute_process(COMMAND ${CHMLS} extract ${PROJECT}.chm /\#STRINGS strings WORKING_DIRECTORY ${FOLDER}
                OUTPUT_QUIET ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${FINISH} ${PROJECT}.chm strings ${name_of_folder}/ WORKING_DIRECTORY ${FOLDER}
                COMMAND_ERROR_IS_FATAL ANY)
