// Holds the precompiled header that the libraries share under the sanitizers.
