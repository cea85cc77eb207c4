"""What the scenarios are made of: a private machine, a screen to look at, and the program under test."""
