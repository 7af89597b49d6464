// Carries the precompiled headers of tests/CMakeLists.txt.
