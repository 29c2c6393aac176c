# Reads CHANGELOG.md, the one place where releases are told: what players see of the version at hand,
# its date, and the same as AppStream's list of releases.

# read_release_notes(FILE): sets in the caller
#   release_date      of the newest release, as 2026-01-31
#   release_notes_xml all of them as AppStream <release> elements
# The newest release must be the project's version: a version is not packaged untold.
function(read_release_notes file)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
    file(READ ${file} text)
    # As XML, with marks for the characters that would split or join the elements of CMake's lists.
    string(REPLACE ";" "@SEMICOLON@" text "${text}")
    string(REPLACE "[" "@OPEN@" text "${text}")
    string(REPLACE "]" "@CLOSE@" text "${text}")
    string(REPLACE "&" "&amp@SEMICOLON@" text "${text}")
    string(REPLACE "<" "&lt@SEMICOLON@" text "${text}")
    string(REPLACE ">" "&gt@SEMICOLON@" text "${text}")
    string(REPLACE "`" "" text "${text}")
    string(REGEX REPLACE "\n  +" " " text "${text}") # an item's further lines
    string(REPLACE "\n" ";" lines "${text}")

    set(dates "")
    set(xml "")
    foreach(line IN LISTS lines)
        if(line MATCHES "^## ([0-9.]+) \\(([0-9]+-[0-9]+-[0-9]+)\\)$")
            list(APPEND dates ${CMAKE_MATCH_1} ${CMAKE_MATCH_2})
            string(APPEND xml "    </ul></description></release>\n"
                   "    <release version=\"${CMAKE_MATCH_1}\" date=\"${CMAKE_MATCH_2}\">"
                   "<description><ul>\n")
        elseif(line MATCHES "^## ")
            message(FATAL_ERROR "${file}: a release reads \"## VERSION (YEAR-MONTH-DAY)\": ${line}")
        elseif(line MATCHES "^- (.*)")
            string(APPEND xml "      <li>${CMAKE_MATCH_1}</li>\n")
        endif()
    endforeach()
    list(POP_FRONT dates newest date)
    if(NOT newest STREQUAL PROJECT_VERSION)
        message(FATAL_ERROR "${file}: its newest release is \"${newest}\", not ${PROJECT_VERSION}")
    endif()
    string(REGEX REPLACE "^ *</ul></description></release>\n" "" xml "${xml}")
    string(REPLACE "@OPEN@" "[" xml "${xml}")
    string(REPLACE "@CLOSE@" "]" xml "${xml}")
    string(REPLACE "@SEMICOLON@" ";" xml "${xml}")
    set(release_date ${date} PARENT_SCOPE)
    set(release_notes_xml "${xml}    </ul></description></release>" PARENT_SCOPE)
endfunction()

# as_changelog_moment(DATE VARIABLE): the beginning of that day as Debian's changelogs write it.
function(as_changelog_moment date variable)
    execute_process(COMMAND date -u -R -d "${date} 00:00" OUTPUT_VARIABLE moment
                    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    set(${variable} ${moment} PARENT_SCOPE)
endfunction()
