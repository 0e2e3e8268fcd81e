// headers.cpp: nothing but the precompiled headers, which belong to a target.
