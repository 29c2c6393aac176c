# Read by cpack before it makes the package.
find_program(SHLIBDEPS_PROGRAM dpkg-shlibdeps)
if(NOT SHLIBDEPS_PROGRAM)
    message(FATAL_ERROR "dpkg-shlibdeps is missing (Debian package dpkg-dev): it tells what the "
                        "package depends on")
endif()
