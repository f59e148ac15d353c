# orderparam_compress(SOURCE NAME): SOURCE of this folder, with the version filled in, compressed, as NAME in the build
# folder; the same bytes from the same text.
find_program(GZIP_PROGRAM gzip REQUIRED)

function(orderparam_compress source name)
    configure_file("${source}" "${name}.text" @ONLY)
    execute_process(COMMAND "${GZIP_PROGRAM}" -9n
        INPUT_FILE "${CMAKE_CURRENT_BINARY_DIR}/${name}.text" OUTPUT_FILE "${CMAKE_CURRENT_BINARY_DIR}/${name}"
        COMMAND_ERROR_IS_FATAL ANY)
endfunction()
