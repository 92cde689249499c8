scrivel_test(macfiles_test
    AppleDoubleTest.cpp
    LINKS scrivel_macfiles
)
