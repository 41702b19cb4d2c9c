# None of the sources that reach the wrong way may compile, and that for want of the header.
include(${LISTS})
execute_process(COMMAND ${CMAKE_COMMAND} --build ${BUILD} --target wrong_ways -- -k 0
                OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE status)
foreach(row ${ROWS})
    if(NOT output MATCHES "${row}.cpp:1:10: fatal error")
        message(SEND_ERROR "${row} finds its header")
    endif()
endforeach()
