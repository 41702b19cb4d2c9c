# Runs SCENARIO with ZEBSIM, from the factory preferences.
file(REMOVE ${PREFS})
execute_process(COMMAND ${ZEBSIM} --prefs ${PREFS} --scenario ${SCENARIO} RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "${SCENARIO} ended with ${status}")
endif()
