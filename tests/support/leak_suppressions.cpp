/// What the leak checker passes over, for tests that draw with custom fonts. Pango keeps its fontconfig configuration
/// past the font map's end, and fontconfig points to what a font file says by offsets, which the checker cannot follow:
/// it is reported although it is still held, once a process.
extern "C" const char* __lsan_default_suppressions();  // NOLINT(bugprone-reserved-identifier)

extern "C" const char* __lsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier)
  return "leak:libfontconfig.so\n";
}
