# One INTERFACE target carries the language standard, the warnings and the sanitizers of every target of ours.
add_library(hooptab_flags INTERFACE)
target_compile_features(hooptab_flags INTERFACE cxx_std_20)
target_compile_options(
  hooptab_flags
  INTERFACE -Wall
            -Wextra
            -Wpedantic
            -Wshadow
            -Wconversion
            -Wsign-conversion
            -Wnon-virtual-dtor
            -Woverloaded-virtual
            -Wold-style-cast
            -Wimplicit-fallthrough)
if(HOOPTAB_WERROR)
  target_compile_options(hooptab_flags INTERFACE -Werror)
endif()
# What a user's program checks of itself: places in containers, lengths of copies, the stack's end.
target_compile_definitions(hooptab_flags INTERFACE "$<$<CONFIG:Release>:_GLIBCXX_ASSERTIONS;_FORTIFY_SOURCE=2>")
target_compile_options(hooptab_flags INTERFACE "$<$<CONFIG:Release>:-fstack-protector-strong>")
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # This compiler sees overlaps in "text" + string that cannot be (GCC bug 105651), and, optimising, endless lengths there and
  # values read out of an optional that has none.
  target_compile_options(
    hooptab_flags INTERFACE -Wno-restrict
                            "$<$<CONFIG:Release>:-Wno-stringop-overflow;-Wno-array-bounds;-Wno-maybe-uninitialized>")
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND HOOPTAB_SANITIZERS)
  # The sanitizers' instrumentation makes this one guess wrongly inside the standard library.
  target_compile_options(hooptab_flags INTERFACE -Wno-maybe-uninitialized)
endif()
if(HOOPTAB_SANITIZERS)
  string(REPLACE "," ";" sanitizers "${HOOPTAB_SANITIZERS}")
  target_compile_options(hooptab_flags INTERFACE -fsanitize=${HOOPTAB_SANITIZERS} -fno-omit-frame-pointer
                                                 -fno-sanitize-recover=all)
  target_link_options(hooptab_flags INTERFACE -fsanitize=${HOOPTAB_SANITIZERS})
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(hooptab_flags INTERFACE -fpch-preprocess) # lets ccache see compiled headers
endif()
if(HOOPTAB_TRACE)
  add_library(hooptab_trace SHARED "${CMAKE_SOURCE_DIR}/tools/mutate/trace.cpp")
  target_link_libraries(hooptab_trace PRIVATE ${CMAKE_DL_LIBS})
  target_compile_options(hooptab_trace PRIVATE -O2 -fvisibility-inlines-hidden) # or it would call what calls it
  target_compile_options(hooptab_flags INTERFACE -fsanitize-coverage=trace-pc)
  target_link_libraries(hooptab_flags INTERFACE hooptab_trace)
endif()
if(HOOPTAB_FUZZ)
  target_compile_options(hooptab_flags INTERFACE -fsanitize=fuzzer-no-link) # or the fuzzer would search blindly
endif()

# What Qt offers to keep its users strict.
add_library(hooptab_qt_flags INTERFACE)
target_link_libraries(hooptab_qt_flags INTERFACE hooptab_flags)
target_compile_definitions(
  hooptab_qt_flags INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH
                             QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_DISABLE_DEPRECATED_BEFORE=0x060400
                             QT_USE_QSTRINGBUILDER)

# What tries the program, and is no part of it, is compiled quickly: without optimisation, and with the sanitizer of addresses
# alone, since the code that is tried has both. It is half of what an everyday build compiles.
add_library(hooptab_test_flags INTERFACE)
target_compile_options(hooptab_test_flags INTERFACE "$<$<CONFIG:Debug>:-O0>")
if("undefined" IN_LIST sanitizers)
  target_compile_options(hooptab_test_flags INTERFACE -fno-sanitize=undefined)
endif()
