# SPDX-License-Identifier: GPL-3.0-or-later
# The texts of the program in other languages: translations/vexa_en.ts, by Qt Linguist's tools.
# The target update_translations takes new texts of the sources into it.

find_program(VEXA_LUPDATE lupdate HINTS "${QT6_INSTALL_PREFIX}/lib/qt6/bin" NO_DEFAULT_PATH)
find_program(VEXA_LRELEASE lrelease HINTS "${QT6_INSTALL_PREFIX}/lib/qt6/bin" NO_DEFAULT_PATH REQUIRED)
set(VEXA_TRANSLATION "${PROJECT_SOURCE_DIR}/translations/vexa_en.ts")

# vexa_translations(TARGET): builds the translation into a library, as the resource ":/translations".
function(vexa_translations target)
  set(compiled "${CMAKE_CURRENT_BINARY_DIR}/vexa_en.qm")
  add_custom_command(
    OUTPUT "${compiled}"
    COMMAND "${VEXA_LRELEASE}" -silent "${VEXA_TRANSLATION}" -qm "${compiled}"
    DEPENDS "${VEXA_TRANSLATION}"
    VERBATIM)
  set(list "${CMAKE_CURRENT_BINARY_DIR}/translations.qrc")
  file(CONFIGURE OUTPUT "${list}" CONTENT
    "<RCC><qresource prefix=\"/translations\"><file>vexa_en.qm</file></qresource></RCC>\n")
  qt_add_resources(resources "${list}")
  target_sources(${target} PRIVATE ${resources})
endfunction()

add_custom_target(update_translations
  COMMAND "${VEXA_LUPDATE}" -silent -locations none -no-obsolete
          -source-language ja -target-language en "${PROJECT_SOURCE_DIR}/src" -ts "${VEXA_TRANSLATION}"
  VERBATIM)
