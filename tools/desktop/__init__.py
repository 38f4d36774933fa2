"""Drives a desktop program as a person would: on a display of its own, with real keys, and through
the accessibility tree. Used by ./run, tools/screenshots and tests/e2e."""
