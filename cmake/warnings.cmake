# Every target of ours links this: the warnings the house builds with.
add_library(brevant_warnings INTERFACE)
target_compile_options(brevant_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion
  $<$<BOOL:${BREVANT_WERROR}>:-Werror>)
