// Allocations that the leak check would report wrongly. Fontconfig's configuration lives as long as
// the process and keeps its pointers in a coded form that the check can't follow.

extern "C" const char* __lsan_default_suppressions(); // NOLINT

extern "C" const char* __lsan_default_suppressions() { // NOLINT
    return "leak:libfontconfig\n";
}

extern "C" const char* __lsan_default_options(); // NOLINT

extern "C" const char* __lsan_default_options() { // NOLINT
    return "print_suppressions=0";
}
