# The library shows the one function that the host looks up, and no symbol of what it is made of.
execute_process(COMMAND ${NM} -D --defined-only --format=posix ${LIBRARY}
                OUTPUT_VARIABLE symbols OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE " [^\n]*" "" names "${symbols}")
if(NOT names STREQUAL "makeButtonPlugin")
    message(FATAL_ERROR "${LIBRARY} shows these symbols:\n${names}")
endif()
