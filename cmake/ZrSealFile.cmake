# Seals a plugin file: cmake -Dfile=FILE -P ZrSealFile.cmake
# The seal is one line behind the last byte, 82 characters with the line breaks at both ends. A file that ends
# in one already is left alone.
set(mark "\nzrwidget-seal-1:")
set(length 82)
file(SIZE "${file}" size)
if(size GREATER length)
    math(EXPR offset "${size} - ${length}")
    file(READ "${file}" tail OFFSET ${offset} HEX)
    string(HEX "${mark}" mark_hex)
    string(FIND "${tail}" "${mark_hex}" place)
    if(place EQUAL 0)
        return()
    endif()
endif()
file(SHA256 "${file}" hash)
file(APPEND "${file}" "${mark}${hash}\n")
