# The checks of a build for Windows: what those of the sources say, the build for this system says.

if(VYR_BUILD_FLAT AND BUILD_SHARED_LIBS)
  vyr_add_check(dll_shared ${checks}/flat/check_dll.sh ${CMAKE_OBJDUMP} ${VYR_WINDOWS_BITS}
                ${PROJECT_SOURCE_DIR}/flat/generated/exports.txt shared $<TARGET_FILE:vyr>)
  vyr_add_check(dll_self_contained ${checks}/flat/check_dll.sh ${CMAKE_OBJDUMP} ${VYR_WINDOWS_BITS}
                ${PROJECT_SOURCE_DIR}/flat/generated/exports.txt self-contained $<TARGET_FILE:vyr_self_contained>)
endif()
if(VYR_BUILD_TOOLS)
  add_test(NAME tools_windows COMMAND ${Python3_EXECUTABLE} ${checks}/tools/check_windows.py
                                      ${PROJECT_SOURCE_DIR}/examples/css-colors.vyr ${CMAKE_CROSSCOMPILING_EMULATOR}
                                      $<TARGET_FILE:vyr_tool>)
endif()

# The fuzzers' corpora, once.
find_path(VYR_FUZZ_HEADERS fuzzer/FuzzedDataProvider.h)
set(corpora ${PROJECT_BINARY_DIR}/corpus)
add_test(NAME fuzz_corpora COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/fuzz/make_corpus.py ${corpora})
set_tests_properties(fuzz_corpora PROPERTIES FIXTURES_SETUP corpora)
foreach(subject archive calls document dtd events values)
  if(VYR_FUZZ_HEADERS)
    add_executable(fuzz_${subject} ${PROJECT_SOURCE_DIR}/fuzz/${subject}.cpp ${PROJECT_SOURCE_DIR}/fuzz/once.cpp)
    target_link_libraries(fuzz_${subject} PRIVATE vyr::vyr vyr_warnings)
    target_include_directories(fuzz_${subject} SYSTEM PRIVATE ${VYR_FUZZ_HEADERS})
    vyr_allow_concatenation(fuzz_${subject})
    add_test(NAME fuzz_${subject} COMMAND fuzz_${subject} ${corpora}/${subject})
    set_tests_properties(fuzz_${subject} PROPERTIES FIXTURES_REQUIRED corpora TIMEOUT 600)
  else()
    vyr_skip_test(fuzz_${subject} "there is no fuzzer/FuzzedDataProvider.h, which comes with clang")
  endif()
endforeach()
if(TARGET fuzz_calls)
  target_link_libraries(fuzz_calls PRIVATE vyr_flat)
  include(${PROJECT_SOURCE_DIR}/fuzz/calls_table.cmake)
endif()

add_test(NAME guides_samples COMMAND doc_guides ${PROJECT_SOURCE_DIR}/examples/css-colors.vyr
         WORKING_DIRECTORY ${PROJECT_BINARY_DIR}/docs/samples)
