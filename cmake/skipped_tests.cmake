# orvel_skip_without(TEST VARIABLE...): a test is not run where one of the variables is false, as that of a program that was not found is.
# ctest tells which were disabled so, and ./check counts them.
function(orvel_skip_without test)
    foreach(program ${ARGN})
        if(NOT ${program})
            set_tests_properties(${test} PROPERTIES DISABLED TRUE)
        endif()
    endforeach()
endfunction()
