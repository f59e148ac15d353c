# Writes the catalogue of cells that docs/catalogue.md holds to OUTPUT: what the driver REPLAY lists, with no feature module
# on, under a few words of introduction.
execute_process(COMMAND "${REPLAY}" --catalogue md OUTPUT_VARIABLE listing RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "${REPLAY} --catalogue md ended with ${status}")
endif()
if(NOT listing MATCHES "^# [^\n]+\n\n")
    message(FATAL_ERROR "${REPLAY} --catalogue md does not begin with a heading")
endif()
string(REGEX REPLACE "^(# [^\n]+\n\n)" "\\1\
Written by `scripts/update-catalogue.sh`; do not edit. Numbers of cells are the bits of `TC::EOperationCellFlag` in decimal,\n\
entries are *label=value*. Cells that modules add: `orderparam-replay --catalogue md --modules mdl_order/mdl_order_command_remark`.\n\
[replay.md](replay.md) says which values stand for the ones that are left out.\n\n" text "${listing}")
file(WRITE "${OUTPUT}" "${text}")
