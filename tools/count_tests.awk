# Adds up a ctest report (JUnit): prints the numbers of passed and of failed tests. A test program
# counts with all its tests; what was skipped, did not run or ended without a summary has failed.
function settle() {
  if (status == "") return
  if (status != "run" && bad == 0) bad = 1
  if (status == "run" && good + bad == 0) good = 1
  passed += good
  failed += bad
  status = ""
}
/<testcase / {
  settle()
  match($0, / status="[a-z]*"/)
  status = substr($0, RSTART + 9, RLENGTH - 10)
  good = bad = 0
}
match($0, /\[  PASSED  \] [0-9]+ test/) { good += substr($0, RSTART + 13, RLENGTH - 18) }
match($0, /\[  (FAILED|SKIPPED) ?\] [0-9]+ test/) {
  text = substr($0, RSTART, RLENGTH)
  gsub(/[^0-9]/, "", text)
  bad += text
}
END {
  settle()
  print passed + 0, failed + 0
}
