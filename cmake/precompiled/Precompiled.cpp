// The precompiled headers need one source file that is compiled with them.
