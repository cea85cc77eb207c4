// A target needs a source to own a precompiled header.
