# readme_blocks.awk: from README and guide the shell script that does what they say, block after block. A block
# of shell runs as it stands. A block of C is saved under the name in its first line, built and run by
# the command beside that name, and once more as C++. One of C++ or Python is built and run
# by its own command alone. A block of CMake becomes CMakeLists.txt.
function refuse(what) { print FILENAME ", line " FNR ": " what > "/dev/stderr"; exit refused = 1 }
function save(name) { printf "cat > %s <<\"END OF BLOCK\"\n%sEND OF BLOCK\n", name, text }
# Line by line, because "sh -e" goes on where the first of two joined commands fails.
function run(commands) { gsub(/ && /, "\n", commands); print commands }
!open && /^    / { refuse("a block without a language") }
/^```/ && !open { open = 1; language = substr($0, 4); text = ""; first = ""; next }
/^```/ {
    open = 0
    ++blocks
    if (language == "sh") run(text)
    else if (language == "cmake") save("CMakeLists.txt")
    else if (language == "c" && split(first, words, /^\/\* |: | \*\/$/) == 4) {
        save(words[2])
        run(words[3])
        sub(/^cc/, "c++ -Wall -Wextra -pedantic -Werror -x c++", words[3])
        run(words[3])
    } else if (language == "cpp" && split(first, words, /^\/\/ |: /) == 3) {
        save(words[2])
        run(words[3])
    } else if (language == "python" && split(first, words, /^# |: /) == 3) {
        save(words[2])
        run(words[3])
    } else refuse("what to do with a block of \"" language "\"?")
}
open { text = text $0 "\n"; if (first == "") first = $0 }
END { if (!refused && (open || !blocks)) refuse("no end of a block") }
