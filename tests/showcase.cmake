# The showcase as a user starts it.
if(TARGET trelio-showcase)
    tolvan_add_test(tst_showcase ALONE TIMEOUT 300)
    add_dependencies(tst_showcase trelio-showcase)
endif()
