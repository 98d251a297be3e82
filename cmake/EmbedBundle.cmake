# Writes the assembler source that takes a packed bundle (PACKED) up as it is. The places of its tree, names and data are
# read from its header here and become symbols, so that registering the bundle touches none of its pages.

file(READ "${PACKED}" header LIMIT 20 HEX)
if(NOT header MATCHES "^71726573(........)(........)(........)(........)$") # "qres", then four big-endian numbers
    message(FATAL_ERROR "${PACKED} is no resource file")
endif()
set(version "${CMAKE_MATCH_1}")
set(tree "0x${CMAKE_MATCH_2}")
set(data "0x${CMAKE_MATCH_3}")
set(names "0x${CMAKE_MATCH_4}")
if(NOT version EQUAL 1)
    message(FATAL_ERROR "${PACKED} has format version ${version}, not 1")
endif()

if(WINDOWS)
    set(section ".section .rdata,\"dr\"")
    set(hidden "")
    set(last "")
else()
    set(section ".section .rodata")
    set(hidden ".hidden ${SYMBOL}Tree, ${SYMBOL}Names, ${SYMBOL}Data")
    set(last ".section .note.GNU-stack,\"\",%progbits")
endif()
# A page of its own: reading one bundle does not fetch the end of another.
file(WRITE "${ASSEMBLY}" "    ${section}
    .globl ${SYMBOL}Tree, ${SYMBOL}Names, ${SYMBOL}Data
    ${hidden}
    .balign 4096
${SYMBOL}:
    .incbin \"${PACKED}\"
    .set ${SYMBOL}Tree, ${SYMBOL} + ${tree}
    .set ${SYMBOL}Names, ${SYMBOL} + ${names}
    .set ${SYMBOL}Data, ${SYMBOL} + ${data}
    ${last}
")
