# Where an installation goes, relative to its prefix: the usual folders, and for a game those of games.
include(GNUInstallDirs)
set(TESSELOR_BINDIR games CACHE STRING "Folder of the program")
set(TESSELOR_DATADIR ${CMAKE_INSTALL_DATAROOTDIR}/games/tesselor CACHE STRING "Folder of skins, rules text and sound")

# The way from the program to its data, the same wherever the whole is moved or staged.
cmake_path(ABSOLUTE_PATH TESSELOR_BINDIR BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} OUTPUT_VARIABLE program_folder)
cmake_path(ABSOLUTE_PATH TESSELOR_DATADIR BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} OUTPUT_VARIABLE data_folder)
cmake_path(RELATIVE_PATH data_folder BASE_DIRECTORY ${program_folder} OUTPUT_VARIABLE TESSELOR_DATA_FROM_PROGRAM)
