# Removes the files that the list `manifest` of an installation names, and the game's own folders when they are
# empty then. Run by the target "uninstall", with the same DESTDIR as the installation.
file(STRINGS ${manifest} files)
foreach(file IN LISTS files)
    message(STATUS "Removing: $ENV{DESTDIR}${file}")
    file(REMOVE $ENV{DESTDIR}${file})
    cmake_path(GET file PARENT_PATH folder)
    while(folder MATCHES "/tesselor(/|$)") # the others belong to the system
        file(GLOB left $ENV{DESTDIR}${folder}/*)
        if(left)
            break()
        endif()
        file(REMOVE_RECURSE $ENV{DESTDIR}${folder})
        cmake_path(GET folder PARENT_PATH folder)
    endwhile()
endforeach()
