# Turns the comments of kitegui.h, which are plain C, into what Doxygen reads. A comment that is a section's heading
# begins a group; every other one that begins a line, or stands behind a member, describes what it stands at.

function close_group() { if (group) print "/** @} */"; group = 0 }

# "   name, other  text" describes parameters when the declaration has them.
function as_parameter(line, declaration,   names, count, name, i) {
    if (line !~ /^ \*   [A-Za-z0-9_]+(, [A-Za-z0-9_]+)*  +[^ ]/) return line
    names = line; sub(/^ \*   /, "", names); sub(/  +.*/, "", names)
    count = split(names, name, ", ")
    for (i = 1; i <= count; ++i)
        if (declaration !~ ("[ *(]" name[i] "[,)]")) return line
    gsub(/ /, "", names)
    sub(/^ \*   [A-Za-z0-9_, ]*  +/, "", line)
    return " * @param " names " " line
}

# A comment is kept until what it describes is known.
function flush(declaration,   i) {
    for (i = 1; i <= kept; ++i) print as_parameter(comment[i], declaration)
    kept = 0
}

# /* ------ / * Title / * / * text / * ------ */
/^\/\* -+$/ {
    close_group()
    getline
    title = $0; sub(/^ \* /, "", title)
    print "/** @defgroup part" ++sections " " title
    heading = 1
    next
}
heading && /^ \* -+ \*\/$/ { print " * @{ */"; heading = 0; group = 1; next }
heading { print; next }

/^#ifdef __cplusplus/ && sections > 1 { close_group() }
/^#endif$/ { close_group() }

/^\/\*/ { sub(/\/\*/, "/**"); kept = 0; in_comment = 1 }
in_comment {
    comment[++kept] = $0
    if (/\*\/$/) in_comment = 0
    previous = ""
    next
}

# Functions that follow each other share the description of the first one.
/^KITEGUI_API .*\(|^[a-z].*kx[A-Z].*\(/ {
    declaration = $0
    while (declaration !~ /;/ && (getline rest) > 0) declaration = declaration "\n" rest
    flush(declaration)
    name = declaration; sub(/\(.*/, "", name); sub(/.*[ *]/, "", name)
    if (previous ~ /^KITEGUI_API .*;/) print "/** @copydoc " described " */"
    else described = name
    previous = declaration
    $0 = declaration
    if (/;[ ]*\/\* /) sub(/\/\* /, "/**< ")
    print
    next
}
{ flush(""); previous = $0 }

/^ *\/\*$/ { sub(/\/\*/, "/**"); print; next }
/^ *\/\* / { sub(/\/\* /, "/** "); print; next }
/[;,{0-9A-Z][ ]*\/\* / { sub(/\/\* /, "/**< "); print; next }
{ print }
END { flush("") }
