# The sanitizers' settings for the programs of build-asan/ (sourced by sanitize.sh and fuzz.sh).
# Leak reports name only our own leaks: lsan.supp holds the few of libraries outside the project.
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=0:strict_string_checks=1:detect_stack_use_after_return=1:check_initialization_order=1"
export LSAN_OPTIONS="suppressions=$root/scripts/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
