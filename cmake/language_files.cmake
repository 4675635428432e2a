# Source, the code that ends the name of the finished file, and the code page of its bytes. The code
# page belongs to the character set that the source gives in its first line.
set(NORVANE_LANGUAGES
  "english     en  CP1252"
  "dutch       nl  CP1252"
  "german      de  CP1252"
  "russian     ru  CP1251"
  "french      fr  CP1252"
  "spanish     es  CP1252"
  "italian     it  CP1252"
  "portuguese  pt  CP1252"
  "polish      pl  CP1250"
  "czech       cs  CP1250"
  "swedish     sv  CP1252"
  "danish      da  CP1252"
  "greek       el  CP1253"
  "turkish     tr  CP1254")

# Makes the target `languages`, which turns each source into its finished language file in the given
# folder. A letter that the code page lacks fails the build.
function(norvane_language_files output_folder)
  find_program(NORVANE_ICONV iconv REQUIRED)
  find_program(NORVANE_SED sed REQUIRED)
  set(source_folder ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../languages)
  cmake_path(NORMAL_PATH source_folder)
  cmake_path(ABSOLUTE_PATH output_folder BASE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR} NORMALIZE)
  set(raw_folder ${CMAKE_CURRENT_BINARY_DIR}/languages.raw)
  file(MAKE_DIRECTORY ${output_folder} ${raw_folder})

  set(finished_files)
  foreach(row IN LISTS NORVANE_LANGUAGES)
    string(REGEX REPLACE " +" ";" row ${row})
    list(GET row 0 language)
    list(GET row 1 code)
    list(GET row 2 code_page)
    set(source ${source_folder}/${language}.txt)
    set(raw ${raw_folder}/language.l${code})
    set(finished ${output_folder}/language.l${code})
    # The finished name appears by a rename, so that a step that fails leaves no half a file behind.
    # The locale is fixed since the bytes that sed sees are no longer UTF-8.
    add_custom_command(
      OUTPUT ${finished}
      COMMAND ${NORVANE_ICONV} -f UTF-8 -t ${code_page} -o ${raw} ${source}
      COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C ${NORVANE_SED} -i "s/$/\\r/" ${raw}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${output_folder}
      COMMAND ${CMAKE_COMMAND} -E rename ${raw} ${finished}
      DEPENDS ${source}
      COMMENT "Language file language.l${code}"
      VERBATIM)
    list(APPEND finished_files ${finished})
  endforeach()
  add_custom_target(languages ALL DEPENDS ${finished_files})
endfunction()
