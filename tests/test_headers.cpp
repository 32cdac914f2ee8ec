// Compiled for its precompiled headers alone.
