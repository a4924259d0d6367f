# Warnings and sanitizers that every target of the project shares.
add_library(melvora_options INTERFACE)
target_compile_options(melvora_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wswitch
  -Wnon-virtual-dtor -Woverloaded-virtual)
target_compile_definitions(melvora_options INTERFACE MELVORA_VERSION="${PROJECT_VERSION}")
if(MELVORA_WERROR)
  target_compile_options(melvora_options INTERFACE -Werror)
endif()
if(MELVORA_SANITIZE)
  target_compile_options(melvora_options INTERFACE -fsanitize=${MELVORA_SANITIZE}
    -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  target_link_options(melvora_options INTERFACE -fsanitize=${MELVORA_SANITIZE})
endif()
