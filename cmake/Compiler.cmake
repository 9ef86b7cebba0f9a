# Warnings are errors, and no implicit conversion from a plain C string can hide in the code.
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Werror)
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
