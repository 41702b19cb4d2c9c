# Runs SCENARIO with ZEBSIM, from the factory preferences. With ALONE the plug-in stands in a folder of its own, without
# the files that are built beside it.
file(REMOVE ${PREFS})
set(plugin)
if(ALONE)
    file(COPY ${ALONE} DESTINATION ${PREFS}.alone)
    get_filename_component(name ${ALONE} NAME)
    set(plugin --plugin ${PREFS}.alone/${name})
endif()
execute_process(COMMAND ${ZEBSIM} --prefs ${PREFS} --scenario ${SCENARIO} ${plugin} RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "${SCENARIO} ended with ${status}")
endif()
