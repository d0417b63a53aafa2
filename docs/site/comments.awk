# The public headers as doxygen wants them. Their comments are for who reads a header in an editor;
# here a comment before a declaration and one behind it become documentation, an indented passage a
# block as it stands, "Stack: ..." a paragraph with a head, and a ruled comment of kfmgen.h the group of
# its family. Of the functions of a family one length stands for all.

# A passage of a comment, its lines in text[1..count]: prints it between `open` and `close_`.
function document(open, close_, language,    i, j, line, inside, last) {
    print open
    for (i = 1; i <= count; ++i) {
        line = text[i]
        if (line ~ /^  +[^ ]/) {
            if (!inside) {
                inside = language
                if (inside == "") {   # program text, or a table
                    for (j = i; j <= count && text[j] ~ /^(  .*)?$/; ++j)
                        if (text[j] ~ /;|#define/) inside = "c"
                }
                print inside == "" ? "@verbatim" : "@code{." inside "}"
                last = inside == "" ? "@endverbatim" : "@endcode"
                inside = "open"
            }
            print substr(line, 3)
            continue
        }
        if (inside && line == "" && text[i + 1] ~ /^  /) {
            print ""
            continue
        }
        if (inside) print last
        inside = ""
        gsub(/[<>*#]/, "\\\\&", line)
        if (match(line, /^(Status, in the order of the checks|Who releases what|[A-Z][a-z]+):( |$)/)) {
            print "@par " substr(line, 1, RLENGTH - (line ~ /:$/ ? 1 : 2))
            line = substr(line, RLENGTH + 1)
            line = toupper(substr(line, 1, 1)) substr(line, 2)
        }
        print line
    }
    if (inside) print last
    print close_
    count = 0
}

# A line with a comment behind its code.
function behind(line,    at) {
    at = index(line, "/* ")
    return substr(line, 1, at - 1) "/**< " toupper(substr(line, at + 3, 1)) substr(line, at + 4)
}

function strip(line) {
    sub(/ *\*\/ *$/, "", line)
    sub(/^ *\/?\*+ ?/, "", line)
    return line
}

function closeGroup() {
    if (grouped) print "/** @} */"
    grouped = 0
}

# A ruled comment: its first line is the title of a family.
function openGroup(    title, name, i) {
    closeGroup()
    while (text[1] ~ /^-*$/) {
        for (i = 1; i < count; ++i) text[i] = text[i + 1]
        --count
    }
    while (text[count] ~ /^-*$/) --count
    title = text[1]
    text[1] = toupper(substr(title, 1, 1)) substr(title, 2) "."
    sub(/(,| of a length).*/, "", title)
    name = tolower(title)
    gsub(/[^a-z0-9]+/, "_", name)
    print "/** @defgroup " name " " title
    document("@brief ", "@{ */")
    grouped = 1
}

# The declarations between the markers of a family, of one length and of any.
function declarationsOf(family,    first, last, what, i, line, name, element, length_, shown, precision) {
    what = family == "WHT" ? "order" : "length"
    for (i = 1; i <= count; ++i)
        if (match(text[i], /_[0-9]+_(32|64)fc?\(/)) {
            last = substr(text[i], RSTART + 1) + 0
            if (!first) first = last
        }
    shown = family == "WHT" ? 10 : 16
    for (i = 1; i <= count; ++i) {
        line = text[i]
        match(line, /(32|64)fc?\(/)
        element = substr(line, RSTART, RLENGTH - 1)
        precision = element ~ /^32/ ? "single" : "double"
        name = "kfmg" family "_"
        if (match(line, /_[0-9]+_(32|64)fc?\(/)) {
            length_ = substr(line, RSTART + 1) + 0
            if (length_ != shown) continue
            print "/** @brief Of " what " " shown ", in " precision " precision; <tt>%" name first \
                  "_" element "</tt> to <tt>%" name last "_" element "</tt> are alike. */"
        } else {
            print "/** @brief Of any " what " from " first " to " last ", in " precision " precision. */"
        }
        print line
    }
    count = 0
}

FNR == 1 {
    file = FILENAME
    sub(/.*\//, "", file)
    plusPlus = file ~ /pp$/
    opening = "@file"
    body = depth = 0
}

# --- C++: line comments outside of the bodies of functions

plusPlus && /^ *\/\// && !body {
    line = $0
    sub(/^ *\/\/ ?/, "", line)
    text[++count] = line
    next
}
plusPlus {
    if (count) {
        document("/** " opening, "*/", "cpp")
        opening = ""
    }
    if (/^#define/) dropping = 1   # macros of the header's own
    if (dropping) {
        dropping = /\\$/
        next
    }
    if (!body && !/^}/ && $0 ~ /[^ ]   +\/\/ /) {
        sub(/\/\/ /, "/* ")
        $0 = behind($0 " */")
    }
    if ($0 !~ /^#/) {
        rest = $0
        sub(/\/\*.*/, "", rest)
        for (i = 1; i <= length(rest); ++i) {
            c = substr(rest, i, 1)
            if (c == "{") {
                isBody[++depth] = rest !~ /^ *(namespace|class|struct|enum|template|extern)/
                body += isBody[depth]
            } else if (c == "}") {
                body -= isBody[depth--]
            }
        }
    }
    print
    next
}

# --- C: block comments

/^\/\* declarations: / {
    family = $3
    inDeclarations = 1
    next
}
/^\/\* declarations of families/ { inRows = 1; next }
/^\/\* end of declarations/ {
    if (inDeclarations) declarationsOf(family)
    inDeclarations = inRows = 0
    next
}
inDeclarations { text[++count] = $0; next }
inRows && /^KFM_API/ {
    name = $3
    sub(/\(.*/, "", name)
    single = name
    sub(/^kfmr/, "kfmg", single)
    print "/** @brief " single "() of every row. */"
    print
    next
}
/^\/\* (clang-format|Laid out by hand)/ { next }
/^#ifdef __cplusplus/ { closeGroup() }
/^extern "C"/ { general = 1 }
general && /^#endif/ {
    general = 0
    grouped = 1
    print
    print "/** @defgroup " (file == "kfmgen.h"    ? "basics Types, statuses, flags, version" : \
                            file == "kfmrows.h" ? "rows Many rows at a time" : \
                                                  "memory Memory blocks")
    print "The text that holds for all of it is that of @ref " file ". @{ */"
    next
}
!inComment && /^ *\/\*/ { inComment = 1; ruled = $0 ~ /^\/\* ---/ }
inComment {
    text[++count] = strip($0)
    if (!/\*\/ *$/) next
    inComment = 0
    if (ruled) openGroup()
    else document("/** " opening, "*/")
    opening = ""
    next
}
/^#define KFM(CORE)?_API/ { next }
/^KFM_API.*_64f\(/ { print "/** @brief The same in double precision. */" }
/[^ ] +\/\* .*\*\/$/ { $0 = behind($0) }
{ print }
