# Makes locales that users have and this machine may not, in a folder of the build; programs find
# them there by LOCPATH. Nothing is installed, and no right is needed but to write there.
#   NORVANE_LOCALES         the folder
#   norvane_user_locales    the target that makes it; there is none where the definitions are missing
find_program(LOCALEDEF localedef)
set(NORVANE_LOCALES ${CMAKE_BINARY_DIR}/locales)
if(NOT LOCALEDEF OR NOT EXISTS /usr/share/i18n/locales/de_DE)
  message(STATUS "No tests under other locales: the package locales is missing")
  return()
endif()

set(made)
foreach(locale de_DE ps_AF tr_TR ar_EG)
  set(name ${NORVANE_LOCALES}/${locale}.UTF-8)
  add_custom_command(
    OUTPUT ${name}/LC_NUMERIC
    COMMAND ${CMAKE_COMMAND} -E make_directory ${NORVANE_LOCALES}
    # Its status tells of warnings too; what counts is that the locale is there.
    COMMAND sh -c "\"$0\" --quiet --force -i \"$1\" -f UTF-8 \"$2\"; test -e \"$2/LC_NUMERIC\""
            ${LOCALEDEF} ${locale} ${name}
    COMMENT "Locale ${locale}"
    VERBATIM)
  list(APPEND made ${name}/LC_NUMERIC)
endforeach()
add_custom_target(norvane_user_locales ALL DEPENDS ${made})
