"""Harness of the scenarios: a private machine, the screen, and the program under test."""
