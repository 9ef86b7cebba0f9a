# Warnings are errors, and no implicit conversion from a plain C string can hide in the code.
add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wnon-virtual-dtor -Werror)
# Files that are read as one see each other's names, and those are no shadows.
if(NOT CMAKE_UNITY_BUILD)
  add_compile_options(-Wshadow)
endif()
add_compile_definitions(QT_NO_CAST_FROM_BYTEARRAY QT_NO_FOREACH QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS)

if(PENWRIGHT_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# Every line that typed text runs through is watched.
if(PENWRIGHT_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined)
  add_link_options(-fsanitize=address,undefined)
endif()

# What a damaged document or data file could make of a fault of ours ends the program instead.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
add_compile_options(-fstack-protector-strong -fstack-clash-protection)
add_link_options(-Wl,-z,relro,-z,now)
# The checked calls of the C library need an optimizer, and the sanitizers bring their own.
if(NOT PENWRIGHT_SANITIZE AND NOT PENWRIGHT_FUZZ)
  set(fortified "$<CONFIG:Release,RelWithDebInfo>")
  set(level 2)
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 12)
    set(level 3)
  endif()
  add_compile_options("$<${fortified}:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=${level}>")
endif()

# Where it was built is nobody's business, and another folder shall give the same program.
add_compile_options(-ffile-prefix-map=${PROJECT_BINARY_DIR}=build -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
