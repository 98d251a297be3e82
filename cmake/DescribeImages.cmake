# Draws the images with the program ICONS into FOLDER/icons and describes them in FOLDER/images.qrc.

execute_process(COMMAND "${PYTHON}" "${ICONS}" --out "${FOLDER}/icons" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${PYTHON}" "${ICONS}" --list OUTPUT_VARIABLE names COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "\n$" "" names "${names}")
string(REGEX REPLACE "([^\n]+)" "        <file>icons/\\1</file>" files "${names}")
file(WRITE "${FOLDER}/images.qrc" "<RCC>\n    <qresource prefix=\"/\">\n${files}\n    </qresource>\n</RCC>\n")
