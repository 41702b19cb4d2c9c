# What holds for every target: language, warnings, sanitizers, hidden symbols.

option(WREN_BUILD_TESTS "Build the tests" ON)
option(WREN_BUILD_BENCH "Build the benchmarks" OFF)
option(WREN_SANITIZE "Build with the address and undefined behaviour sanitizers" OFF)
option(WREN_SANITIZE_THREADS "Build with the thread sanitizer" OFF)
option(WREN_FUZZ "Build the fuzz targets; by clang alone" OFF)

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)

# Without -fno-gnu-unique a library with inline statics is never unloaded.
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wno-unknown-pragmas
                    -Werror $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)
add_compile_definitions(QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII QT_USE_QSTRINGBUILDER QT_DEPRECATED_WARNINGS)
# An assert of Qt's containers must hold in every build that tests run on.
add_compile_definitions($<$<NOT:$<CONFIG:Release>>:QT_FORCE_ASSERTS>)

if(WREN_SANITIZE)
    add_compile_options(-fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=undefined
                        -fno-omit-frame-pointer -fno-sanitize=vptr)
    add_link_options(-fsanitize=address,undefined)
endif()

if(WREN_SANITIZE_THREADS)
    add_compile_options(-fsanitize=thread)
    add_link_options(-fsanitize=thread)
endif()

if(WREN_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

# For each program. It must be an object of the program itself, or the linker leaves it out.
function(wren_check_leaks program)
    if(WREN_SANITIZE)
        target_sources(${program} PRIVATE ${CMAKE_SOURCE_DIR}/cmake/LeakCheck.cpp)
    endif()
endfunction()

# A floor of the house: a static library whose headers are seen by those that link it, and by nobody else. It is what
# lies in its folder, or in the FOLDERS of it; SOURCES when there is more to it than that.
function(wren_floor name)
    cmake_parse_arguments(FLOOR "" "" "FOLDERS;SOURCES;LINKS" ${ARGN})
    if(NOT FLOOR_FOLDERS)
        set(FLOOR_FOLDERS .)
    endif()
    add_library(${name} STATIC ${FLOOR_SOURCES})
    foreach(folder ${FLOOR_FOLDERS})
        get_filename_component(folder ${folder} ABSOLUTE)
        target_include_directories(${name} PUBLIC ${folder})
        set_property(GLOBAL APPEND PROPERTY WREN_FLOOR_FOLDERS ${folder})
        if(NOT FLOOR_SOURCES)
            file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.cpp ${folder}/*.h ${folder}/*.qrc)
            target_sources(${name} PRIVATE ${sources})
        endif()
    endforeach()
    target_link_libraries(${name} PUBLIC ${FLOOR_LINKS})
    set_property(GLOBAL APPEND PROPERTY WREN_FLOORS ${name})
endfunction()

# Files of this folder one after the other, as the TARGET in its build folder.
function(join_files target)
    list(TRANSFORM ARGN PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
    add_custom_command(
        OUTPUT ${target}
        COMMAND ${CMAKE_COMMAND} -E cat ${ARGN} > ${target}
        DEPENDS ${ARGN}
        COMMENT "Joining ${target}"
        VERBATIM)
endfunction()
