# What a plugin file of the client needs beside being built; also part of the installed package.

# zr_seal_plugin(<target>)
# Appends a hash of its own content to the file each time it is built, by which the client tells a damaged file
# before it runs any of its code. An unsealed file is only loaded when a manifest names it.
function(zr_seal_plugin target)
    # What is sealed stays as it is: installing must not write other search paths into it.
    set_target_properties(${target} PROPERTIES BUILD_WITH_INSTALL_RPATH ON)
    add_custom_command(TARGET ${target} POST_BUILD
        COMMAND ${CMAKE_COMMAND} "-Dfile=$<TARGET_FILE:${target}>" -P ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/ZrSealFile.cmake
        VERBATIM)
endfunction()
