# The developer presets make warnings errors. Qt offers no implicit conversions from byte arrays and to URLs, and no keyword macros.
add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wnon-virtual-dtor)
# A unity build would also warn of names that two source files both use.
if(NOT CMAKE_UNITY_BUILD)
  add_compile_options(-Wshadow)
endif()
add_compile_definitions(QT_NO_CAST_FROM_BYTEARRAY QT_NO_FOREACH QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS)

if(PENWRIGHT_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# The fuzzer observes all code that typed text can reach.
if(PENWRIGHT_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined)
  add_link_options(-fsanitize=address,undefined)
  # The assertions of Qt notice an index beyond the end of a text, which the sanitizers often do not.
  add_compile_definitions(QT_FORCE_ASSERTS)
endif()

# Hardening: a fault that a damaged document or data file exploits ends the program instead.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
add_compile_options(-fstack-protector-strong -fstack-clash-protection)
add_link_options(-Wl,-z,relro,-z,now)
# The checked calls of the C library need optimization; the sanitizers have their own checks.
if(NOT PENWRIGHT_SANITIZE AND NOT PENWRIGHT_FUZZ)
  set(fortified "$<CONFIG:Release,RelWithDebInfo>")
  set(level 2)
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 12)
    set(level 3)
  endif()
  add_compile_options("$<${fortified}:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=${level}>")
endif()

# The program does not contain the path of the build folder, so that every folder gives the same program.
add_compile_options(-ffile-prefix-map=${PROJECT_BINARY_DIR}=build -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
