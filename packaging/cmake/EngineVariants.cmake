# The engine as a library of the package's own, once for every processor of the architecture and once
# for those with the instructions that the bit sets live on. The system's loader takes the right one:
# beside each folder that it searches it knows glibc-hwcaps/LEVEL. Both are made of the same sources
# and find the same moves; in the build they lie as they are installed.

include(GNUInstallDirs)
set(DRAUGHTS_LIBRARY_DIR ${CMAKE_INSTALL_LIBDIR}/tavlora)

# The library is nobody else's, so its functions may call each other directly.
function(engine_variant target place)
    set_target_properties(${target} PROPERTIES
        OUTPUT_NAME tavlora-engine
        LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib${place})
    target_compile_options(${target} PRIVATE -fno-semantic-interposition)
    target_link_options(${target} PRIVATE -Wl,-Bsymbolic-functions)
    install(TARGETS ${target} LIBRARY DESTINATION ${DRAUGHTS_LIBRARY_DIR}${place}
            PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
endfunction()

# First as seen from the program, so that an installation works from any folder; then in full, since
# the loader learns its program's folder from /proc, which need not be there.
file(RELATIVE_PATH from_program ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR}/tavlora)
set_target_properties(tavlora PROPERTIES
    INSTALL_RPATH "$ORIGIN/${from_program};${CMAKE_INSTALL_FULL_LIBDIR}/tavlora")
engine_variant(draughts_engine "")

if(DRAUGHTS_FAST_LEVEL)
    get_target_property(sources draughts_engine SOURCES)
    add_library(draughts_engine_fast SHARED ${sources})
    target_include_directories(draughts_engine_fast PRIVATE ${PROJECT_SOURCE_DIR})
    target_link_libraries(draughts_engine_fast PRIVATE Qt6::Core draughts_options)
    target_compile_options(draughts_engine_fast PRIVATE -march=${DRAUGHTS_FAST_LEVEL})
    precompile_headers(draughts_engine_fast core)
    add_dependencies(draughts_engine draughts_engine_fast) # who runs with one runs with either
    engine_variant(draughts_engine_fast /glibc-hwcaps/${DRAUGHTS_FAST_LEVEL})
endif()
