# orvel_skip_without(TEST VARIABLE...): disables the test where one of the variables is false, as the variable of find_program is when the
# program was not found. ctest lists disabled tests, and ./check counts them as skipped.
function(orvel_skip_without test)
    foreach(program ${ARGN})
        if(NOT ${program})
            set_tests_properties(${test} PROPERTIES DISABLED TRUE)
        endif()
    endforeach()
endfunction()
