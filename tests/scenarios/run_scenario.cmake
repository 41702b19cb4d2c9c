# Runs SCENARIO with ZEBSIM, from the factory preferences and with a fresh folder of saved files. With READER it holds
# afterwards what stands in FRAMES, recorded at RATE; NAMES are cameras that are called otherwise than their files.
set(folder ${PREFS}.saved)
file(REMOVE_RECURSE ${folder})
file(MAKE_DIRECTORY ${folder})
file(WRITE ${PREFS} "[export]\ndir=${folder}\n[layout]\ndir=${folder}\n[snap]\ndir=${folder}\n")
# The test itself ends after 300 seconds; under sanitizers the longest takes a third of that.
execute_process(COMMAND ${ZEBSIM} --prefs ${PREFS} --scenario ${SCENARIO} --timeout 280 RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "${SCENARIO} ended with ${status}")
endif()
if(READER)
    string(REPLACE "|" ";" names "${NAMES}")
    execute_process(COMMAND ${READER} ${folder} ${RATE} ${names} OUTPUT_VARIABLE found COMMAND_ERROR_IS_FATAL ANY)
    file(READ ${FRAMES} wanted)
    if(NOT found STREQUAL wanted)
        message(FATAL_ERROR "${folder} holds\n${found}instead of\n${wanted}")
    endif()
endif()
