// What is wrong with a command line or an input is said in one line, with a status of its kind.
#include <unistd.h>

#include "run_tool.h"

namespace kfm::test {
namespace {

using Refusal = ToolTest;

TEST_F(Refusal, Options) {
    const struct {
        const char* arguments;
        const char* words;
    } cases[] = {
        {"", "no command; `kfmgen --help` lists them"},
        {"translate", "translate"},
        {"list info", "info"},
        {"transform", "--length is required"},
        {"transform --length 1", "DFTFwd_CToC has lengths 2 to 64"},
        {"transform --length 65", "DFTFwd_CToC has lengths 2 to 64"},
        {"transform --length 0100", "length 100: DFTFwd_CToC has"},
        {"transform --length 12 --family WHT", "WHT has lengths 2 to 8192, powers of two"},
        {"transform --length 16384 --family WHT", "WHT has lengths 2 to 8192, powers of two"},
        {"transform --length four", "--length: 'four' is not a number"},
        {"transform --length 0x10", "--length: '0x10' is not a number"},
        {"transform --length 4.5", "--length: '4.5' is not a number"},
        {"transform --length 4294967300", "--length: '4294967300' is not from"},
        {"transform --length 18446744073709551620", "'18446744073709551620' is out of range"},
        {"transform --length ''", "--length: '' is not a number"},
        {"transform --length 4 --length 8", "--length"},
        {"transform --length 4 --family DFT", "no family 'DFT'"},
        {"transform --length 100 --family DCT4", "nearest lengths of DCT4: 65 and 128"},
        {"transform --length -3 --family DCT4", "nearest lengths of DCT4: 2"},
        {"transform --length 2147483647 --family DCT4", "nearest lengths of DCT4: 134217729"},
        {"transform --length 4 --family DCT4 --flag by-sqrt-n", "DCT4 is not scaled"},
        {"transform --length 4 --flag 8", "'8' is none of"},
        {"transform --length 4 --precision half", "'half' is none of"},
        {"transform --length 4 --tail wag", "'wag' is none of"},
        {"transform --length 4 --layout heap", "'heap' is none of ccs|pack|perm"},
        {"transform --length 4 --layout ccs --family Hartley", "not with Hartley"},
        {"transform --length 4 --layout ccs --family DFTFwd_CToC", "not with DFTFwd_CToC"},
        {"transform --length 4 --hop 0", "--hop: '0' is not from 1 to 2147483647"},
        {"transform --length 4 --hop -3", "--hop"},
        {"transform --length 4 --colour", "--colour"},
        {"transform --length 4 --channel 0", "--channel: '0' is not from 1"},
        {"transform --length 4 --channel left", "--channel: 'left' is not a number"},
        {"transform --length 4 --channel 1 --complex", "--complex"},
        {"transform --length 4 --raw mp3", "'mp3' is none of alaw|"},
        {"transform --length 4 --raw-channels 2", "--raw"},
        {"transform --length 4 --raw u8 --raw-channels 0", "--raw-channels: '0' is not from 1"},
        {"spectrum x.wav --slice 0", "--slice: '0' is not from 0.01 to 3600"},
        {"spectrum x.wav --slice nan", "--slice: 'nan' is not a number"},
        {"spectrum x.wav --slice inf", "--slice: 'inf' is not a number"},
        {"spectrum x.wav --slice 1,5", "--slice: '1,5' is not a number"},
    };
    for (const auto& [arguments, words] : cases) {
        SCOPED_TRACE(arguments);
        expectRefusal(run(arguments, "1\n"), usageStatus, words);
    }
    EXPECT_EQ(run("transform --length 010 --family Hartley", "1\n").out,
              run("transform --length 10 --family Hartley", "1\n").out);
}

TEST_F(Refusal, Text) {
    const std::string comma = "; decimals are marked by a point, not by a comma\n";
    const std::string choose = "choose one by --channel 1 to 2, their mean by --channel mix, or "
                               "two as a complex signal by --complex";
    const struct {
        std::string text;
        std::string line;   // after the name
    } cases[] = {
        {"", " no samples\n"},
        {"# nothing\n\n", " no samples\n"},
        {"re,im\n", " no samples\n"},
        {"1\ntwo\n", "2:1: 'two' is not a number\n"},
        {"two\n", "1:1: 'two' is not a number\n"},
        {"time, left\n0, 1\n", "1:1: 'time' is not a number\n"},
        {"1\n\n3x\n", "3:1: '3x' is not a number\n"},
        {"re,im\n1,2\n 3 , 4y\n", "3:6: '4y' is not a number\n"},
        {"re,im\n1,\n", "2:3: '' is not a number\n"},
        {"1\n+-2\n", "2:1: '+-2' is not a number\n"},
        {"0x10\n", "1:1: '0x10' is not a number\n"},
        {"0\nnan\n", "2:1: 'nan' is not a number\n"},
        {"inf\n", "1:1: 'inf' is not a number\n"},
        {"1e999\n", "1:1: '1e999' is out of range\n"},
        {"\xEF\xBB\xBFx\n", "1:1: 'x' is not a number\n"},
        {"1,5\n2,5\n", "1: 2 columns: " + choose + comma},
        {"1 5\n2 5\n", "1: 2 columns: " + choose + "\n"},
        {"value\n1,5\n", "2:1: '1,5' is not a number" + comma},
        {"re;im\n1,5;2\n", "2:1: '1,5' is not a number" + comma},
        {"1\n2\n3 4\n", "3:1: expected as many columns as before, 1, not 2\n"},
        {"re,im\n1\n", "2:1: expected as many columns as before, 2, not 1\n"},
        {"re,re\n1,2\n", "1: two columns are named 're'\n"},
        {"1\n" + std::string(60000, 'x') + "\n",
         "2:1: '" + std::string(20, 'x') + "..." + std::string(20, 'x') + "' is not a number\n"},
        {"1\n\x1B[2J\n", "2:1: '\\x1b[2J' is not a number\n"},
        {std::string("1\0\n", 3), " neither a text nor a sound of a kind that is known\n"},
        {std::string("\xFF\xFE"
                     "1\0\n\0",
                     6),
         " a text in UTF-16; save it as UTF-8\n"},
    };
    for (const auto& [text, line] : cases) {
        SCOPED_TRACE(line);
        expectRefusal(run("transform --length 4 -o out", text), inputStatus,
                      "kfmgen: standard input:" + line);
        expectRefusal(run("transform --length 4 -o out '" + textFile("t x", text) + "'"),
                      inputStatus, "kfmgen: t x:" + line);
    }
    EXPECT_EQ(names(), std::vector<std::string>{"t x"});
    expectRefusal(run("transform --length 4 --tail drop -o out", "1\n2\n3\n"), inputStatus,
                  "kfmgen: standard input: 3 samples do not fill one frame of 4\n");
}

// Rows that say their frame have to say what is asked for.
TEST_F(Refusal, FramesOfAnotherLength) {
    const std::string four = run("transform --length 4", "1\n2\n3\n4\n5\n6\n7\n8\n").out;
    const std::string bins = run("transform --length 4 --layout ccs", "1\n2\n3\n4\n5\n").out;
    const std::string shorter = four.substr(0, four.size() - 8);
    std::string gap = four;
    gap.erase(gap.find("0,2,"), gap.find("0,3,") - gap.find("0,2,"));
    const struct {
        std::string options, text, line;
    } cases[] = {
        {"--length 8", four,
         "6:3: row 0 of frame 1 comes where row 4 of frame 0 has to be, with 8 "
         "rows in each frame\n"},
        {"--length 2", four,
         "4:3: row 2 of frame 0 comes where row 0 of frame 1 has to be, with 2 "
         "rows in each frame\n"},
        {"--length 4", gap,
         "4:3: row 3 of frame 0 comes where row 2 of frame 0 has to be, with 4 "
         "rows in each frame\n"},
        {"--length 4", shorter.substr(0, shorter.rfind('\n') + 1),
         "8: the file ends where row 3 of frame 1 has to be, with 4 rows in each frame\n"},
        {"--length 2", bins, "1: DFTInv_CToC does not take bins of half a spectrum\n"},
        {"--length 6 --layout ccs", bins,
         "5:3: row 0 of frame 1 comes where row 3 of frame 0 has "
         "to be, with 4 rows in each frame\n"},
        {"--length 6 --layout ccs", four,
         "1: DFTInv_CCSToR takes bins of half a spectrum, not rows named index\n"},
    };
    for (const auto& [options, text, line] : cases) {
        SCOPED_TRACE(line);
        const std::string family =
            options.find("--layout") == std::string::npos ? "DFTInv_CToC " : "DFTInv ";
        expectRefusal(run("transform -o out --family " + family + options, text), inputStatus,
                      "kfmgen: standard input:" + line);
    }
    expectRefusal(run("transform --length 4 --hop 2", four), usageStatus,
                  "standard input: it is cut in frames, --hop has to be a multiple of 4\n");
    EXPECT_EQ(run("transform --length 4 --hop 8", four).status, 0);
}

TEST_F(Refusal, Files) {
    std::filesystem::create_symlink("circle", path("circle"));
    textFile("file", "1\n");
    const std::string long_name(300, 'n');
    std::string long_path;
    for (int i = 0; i < 2000; ++i) long_path += "./";
    const struct {
        std::string name, line;
    } cases[] = {
        {"absent", "absent: cannot be opened: there is no such file or folder\n"},
        {"file/part", "file/part: cannot be opened: a part of the path is no folder\n"},
        {".", ".: cannot be read: it is a folder\n"},
        {"circle", "circle: cannot be opened: its symbolic links lead in a circle\n"},
        {long_name, "...nn"},
        {long_name, ": cannot be opened: the name is too long\n"},
        {long_path + long_path + "file", ": cannot be opened: the name is too long\n"},
        {"''", "'': cannot be opened: there is no such file or folder\n"},
        {"$'a\\nb\\e[2J'", "a b\\x1b[2J: cannot be opened: there is no such file or folder\n"},
    };
    for (const auto& [name, line] : cases)
        for (const std::string command : {"transform --length 4 ", "spectrum "}) {
            SCOPED_TRACE(command + line);
            const Outcome outcome = run(command + name);
            expectRefusal(outcome, inputStatus, line);
            EXPECT_LT(outcome.err.size(), 400u);
        }
    expectRefusal(run("spectrum file"), inputStatus, "kfmgen: file: ");
}

TEST_F(Refusal, ForbiddenFile) {
    // Root may read everything.
    const std::string user = geteuid() == 0 ? "setpriv --reuid 65534 --clear-groups " : "";
    std::filesystem::permissions(path("."), std::filesystem::perms{0777});
    if (shell(user + "\"$kfmgen\" --version").status != 0)
        GTEST_SKIP() << "another user cannot run the program";
    textFile("file", "1\n");
    shell("chmod 0 file; mkdir closed; chmod 0 closed");
    for (const std::string name : {"file", "closed/file"})
        expectRefusal(shell(user + "\"$kfmgen\" transform --length 4 " + name), inputStatus,
                      "kfmgen: " + name + ": cannot be opened: permission denied\n");
    shell("echo old > out; chmod 444 out");
    for (const std::string name : {"out", "closed/out"})
        expectRefusal(shell(user + "\"$kfmgen\" transform --length 4 -o " + name, "1\n"),
                      outputStatus, "kfmgen: " + name + ": cannot be written: permission denied\n");
    EXPECT_EQ(contents("out"), "old\n");
}

TEST_F(Refusal, ValuesThatTheTransformDoesNotTake) {
    const std::string complex = " takes real samples, not complex ones\n";
    expectRefusal(run("transform --length 2 --layout ccs -o out.csv", "re,im\n1,0\n0,1\n"),
                  inputStatus, "kfmgen: standard input:3:1: DFTFwd_RToCCS" + complex);
    expectRefusal(run("transform --length 2 --family DCT4", "re,im\n1,1\n"), inputStatus,
                  "kfmgen: standard input:2:1: DCT4" + complex);
    // Not infinity, which could not be read back.
    expectRefusal(run("transform --length 2 -o out", "0\n0\n3e38\n3e38\n"), inputStatus,
                  "kfmgen: standard input: results of frame 1 are too large for single precision; "
                  "see --precision\n");
    expectRefusal(run("transform --length 2 --precision double -o out", "1e308\n1e308\n"),
                  inputStatus, "results of frame 0 are too large for double precision\n");
    EXPECT_TRUE(names().empty());
}

TEST_F(Refusal, NoMemory) {
    if (KFM_SANITIZED) GTEST_SKIP() << "a sanitizer takes memory of its own";
    expectRefusal(shell("ulimit -v 500000; \"$kfmgen\" transform --family DCT4 --length 67108864"
                        " -o /dev/null",
                        "1\n"),
                  faultStatus, "kfmgen: not enough memory\n");
}

}   // namespace
}   // namespace kfm::test
