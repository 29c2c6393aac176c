# What every target of this project is compiled with, as the interface target `draughts_options`.

add_library(draughts_options INTERFACE)
target_compile_options(draughts_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor
    -Woverloaded-virtual $<$<BOOL:${DRAUGHTS_WERROR}>:-Werror>)

if(DRAUGHTS_SANITIZE)
    target_compile_options(draughts_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(draughts_options INTERFACE -fsanitize=address,undefined)
endif()

# The programs themselves are linked with -fsanitize=fuzzer, see tests/properties.
if(DRAUGHTS_FUZZ)
    target_compile_options(draughts_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

if(DRAUGHTS_COVERAGE)
    target_compile_options(draughts_options INTERFACE --coverage -fprofile-update=atomic)
    target_link_options(draughts_options INTERFACE --coverage)
endif()

# The search counts and scans bit sets: on x86 the instructions for that are not in the base set.
# A program that is built where it runs may use what this processor has; the level is a named one
# (not "native") so that a profile or a memory checker understands every instruction of it. A program
# that travels (a package) is built for the base set, with a second engine for the named level.
if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
    set(DRAUGHTS_FAST_LEVEL x86-64-v3)
endif()
include(CheckCXXSourceRuns)
if(DRAUGHTS_FAST_LEVEL AND NOT CMAKE_CROSSCOMPILING AND NOT DRAUGHTS_PORTABLE)
    check_cxx_source_runs("
        int main() {
            return __builtin_cpu_supports(\"avx2\") && __builtin_cpu_supports(\"bmi2\") &&
                   __builtin_cpu_supports(\"popcnt\") ? 0 : 1;
        }" DRAUGHTS_HAS_X86_64_V3)
    if(DRAUGHTS_HAS_X86_64_V3)
        target_compile_options(draughts_options INTERFACE -march=${DRAUGHTS_FAST_LEVEL})
    endif()
endif()
