# Adds up the results of ctest, a file as --output-junit writes it, in one line. The tests within a program count, where
# its output tells them as GoogleTest or Qt Test does; any other program counts as one. Ends with status 1 on a failure.

function close_program() {
    if (name == "")
        return
    if (programStatus == "disabled" || programStatus == "notrun") {
        # Not run for a reason of its own is skipped; one that could not be started has failed.
        if (programStatus == "disabled" || skipReason)
            ++skipped
        else
            ++failed
    } else if (programStatus == "fail" && programFailed == 0) {
        # It broke down before, or behind, what it counted.
        passed += programPassed
        ++failed
    } else if (programPassed + programFailed + programSkipped == 0) {
        ++passed
    } else {
        passed += programPassed
        failed += programFailed
        skipped += programSkipped
    }
    ++programs
    name = ""
}

function number(text) {
    gsub(/[^0-9]/, "", text)
    return text + 0
}

/<testcase / {
    close_program()
    name = $0
    programPassed = programFailed = programSkipped = 0
    skipReason = 0
    match($0, /status="[a-z]*"/)
    programStatus = substr($0, RSTART + 8, RLENGTH - 9)
}
/<skipped message="SKIP_/ { skipReason = 1 }
/\[  PASSED  \] [0-9]+ tests?\./ { match($0, /PASSED  \] [0-9]+/); programPassed += number(substr($0, RSTART, RLENGTH)) }
/\[  FAILED  \] [0-9]+ tests?, listed below/ { match($0, /FAILED  \] [0-9]+/); programFailed += number(substr($0, RSTART, RLENGTH)) }
/\[  SKIPPED \] [0-9]+ tests?, listed below/ { match($0, /SKIPPED \] [0-9]+/); programSkipped += number(substr($0, RSTART, RLENGTH)) }
/Totals: [0-9]+ passed, [0-9]+ failed, [0-9]+ skipped/ {
    match($0, /[0-9]+ passed/); programPassed += number(substr($0, RSTART, RLENGTH))
    match($0, /[0-9]+ failed/); programFailed += number(substr($0, RSTART, RLENGTH))
    match($0, /[0-9]+ skipped/); programSkipped += number(substr($0, RSTART, RLENGTH))
}

END {
    close_program()
    printf "%d tests passed, %d failed, %d skipped, in %d programs.\n", passed, failed, skipped, programs
    exit failed > 0 || passed == 0
}
