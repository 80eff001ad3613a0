# The house warnings, applied target by target so that Qt's and GoogleTest's headers stay quiet.
function(vadro_avisos objetivo)
    target_compile_options(${objetivo} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wold-style-cast)
endfunction()
