// Where samples come from: files, pipes of every kind, devices that fail; and how much memory a
// long signal takes.
#include <algorithm>

#include "run_tool.h"

namespace kfm::test {
namespace {

using Pipe = ToolTest;
using Memory = ToolTest;

const std::string pairs = "frame,index,re,im\n0,0,3,0\n0,1,-1,0\n1,0,7,0\n1,1,-1,0\n";

TEST_F(Pipe, EveryWayOfGivingText) {
    textFile("four", "1\n2\n3\n4\n");
    const std::string command = "\"$kfmgen\" transform --length 2 ";
    for (const std::string& script :
         {command + "four", command + "< four", command + "- < four", command + "/dev/stdin < four",
          "cat four | " + command, "cat four | " + command + "/dev/stdin",
          "(sleep 0.1; head -n1 four; sleep 0.1; tail -n+2 four) | " + command + "-",
          command + "<(cat four)", command + "/dev/fd/7 7< four",
          "mkfifo fifo; cat four > fifo & timeout 10 " + command + "fifo"}) {
        SCOPED_TRACE(script);
        const Outcome outcome = shell(script);
        EXPECT_EQ(outcome.err, "");
        EXPECT_EQ(outcome.out, pairs);
    }
}

// A file that was read in part before it was handed over goes on where it stands.
TEST_F(Pipe, InputGoesOnWhereItStands) {
    textFile("five", "9\n1\n2\n3\n4\n");
    const std::string script = "{ head -c2 >/dev/null; \"$kfmgen\" transform --length 2 ";
    for (const std::string name : {"-", "/dev/stdin"})
        EXPECT_EQ(shell(script + name + "; } < <(cat five)").out, pairs) << name;
    EXPECT_EQ(shell("{ read x; \"$kfmgen\" transform --length 2 /dev/stdin; } < five").out, pairs);
}

TEST_F(Pipe, SoundsWhoseHeaderIsInFront) {
    std::vector<double> samples;   // more than a pipe holds, and than is kept of one
    for (int i = 0; i < 5000000; ++i) samples.push_back(i % 7919 / 16384.0);
    const std::string command = "\"$kfmgen\" transform --length 2 --hop 9999 ";
    soundFile("short.wav", 8000, 1, {samples.begin(), samples.begin() + 50000});
    soundFile("long.wav", 8000, 1, samples);
    soundFile("long.au", 8000, 1, samples, SF_FORMAT_AU | SF_FORMAT_PCM_16);
    soundFile("long.flac", 8000, 1, samples, SF_FORMAT_FLAC | SF_FORMAT_PCM_16);
    for (const std::string file : {"short.wav", "long.wav", "long.au", "long.flac"}) {
        SCOPED_TRACE(file);
        const std::string expected = shell(command + file).out;
        const Outcome outcome = shell("cat " + file + " | " + command);
        EXPECT_EQ(outcome.err, "");
        EXPECT_GT(expected.size(), 100u);
        EXPECT_TRUE(outcome.out == expected);
    }
}

// A picture before the samples is passed over.
TEST_F(Pipe, SoundWithALongHeader) {
    soundFile("plain.wav", 8000, 1, std::vector<double>(1000, 0.5));
    shell("{ head -c36 plain.wav; printf 'LIST\\0\\0\\x20\\0'; head -c2097152 /dev/zero; "
          "tail -c+37 plain.wav; } > picture.wav");
    const std::string expected = run("transform --length 4 plain.wav").out;
    EXPECT_TRUE(run("transform --length 4 picture.wav").out == expected);
    EXPECT_TRUE(shell("cat picture.wav | \"$kfmgen\" transform --length 4").out == expected);
}

// Programs that write a sound into a pipe do not know its length.
TEST_F(Pipe, SoundOfUnknownLength) {
    soundFile("whole.wav", 8000, 1, std::vector<double>(1000, 0.5));
    const std::string expected = run("transform --length 4 whole.wav").out;
    for (const std::string size :
         {"\\xff\\xff\\xff\\xff", "\\xff\\xff\\xff\\x7f", "\\0\\0\\0\\x80", "\\0\\xf0\\xff\\x7f"})
        for (const std::string from : {"cat open.wav |", ""}) {
            const Outcome outcome = shell("{ head -c40 whole.wav; printf '" + size +
                                          "'; tail -c+45 whole.wav; } > "
                                          "open.wav; " +
                                          from + " \"$kfmgen\" transform --length 4 " +
                                          (from.empty() ? "open.wav" : "-"));
            EXPECT_EQ(outcome.err, "") << size << from;
            EXPECT_TRUE(outcome.out == expected) << size << from;
        }
}

// An hour of sound takes no more memory than a second, a line of any length no more than others.
TEST_F(Memory, IsThatOfAFrame) {
    const std::string hop = " --length 64 --hop 100000 ";
    const Outcome sound = shell("head -c 200000000 /dev/zero | \"$kfmgen\" transform"
                                " --raw s16le --raw-channels 2 --channel 2" +
                                hop);
    EXPECT_EQ(sound.status, 0) << sound.err;
    EXPECT_EQ(std::ranges::count(sound.out, '\n'), 500 * 64 + 1);
    const Outcome text = shell("yes 1 | head -n 5000000 | \"$kfmgen\" transform" + hop);
    EXPECT_EQ(std::ranges::count(text.out, '\n'), 50 * 64 + 1);
    const Outcome line =
        shell("head -c 100000000 /dev/zero | tr '\\0' 7 | \"$kfmgen\" transform" + hop);
    expectRefusal(line, inputStatus, "standard input:1: more than 65536 characters in a line\n");
    if (KFM_SANITIZED) GTEST_SKIP() << "a sanitizer takes memory of its own";
    for (const Outcome& outcome : {sound, text, line}) EXPECT_LT(outcome.peakKiB, 64 << 10);
}

// On a terminal, which `script` makes, slow work shows how far it is and takes that back.
class Progress : public ToolTest {
protected:
    std::string terminal(const std::string& command) const {
        textFile("command", command);
        const Outcome outcome = shell("script -qec 'bash command' /dev/null </dev/null");
        EXPECT_EQ(outcome.status, 0) << outcome.out;
        return outcome.out;
    }
};

TEST_F(Progress, IsShownOfSlowWorkAndTakenBack) {
    const std::string slowly = "(yes 1 | head -n 400; sleep 1.2; yes 1 | head -n 400) | ";
    const std::string transform = "\"$kfmgen\" transform --length 64 ";
    const std::string shown = terminal(slowly + transform + "-o out");
    EXPECT_NE(shown.find("\r\x1B[K448 samples, 1 s"), std::string::npos) << shown;
    EXPECT_TRUE(shown.ends_with("\r\x1B[K")) << shown;
    // Of a file one knows how far; stopped for a while, any work is slow.
    textFile("all", ones(4000000));
    const std::string bar =
        terminal(transform + "-o out all & sleep 0.02\n"
                             "kill -STOP $!; sleep 1.2; kill -CONT $!; wait $!");
    EXPECT_NE(bar.find("\r\x1B[K["), std::string::npos) << bar;
    EXPECT_NE(bar.find(" %, "), std::string::npos) << bar;
    EXPECT_TRUE(bar.ends_with(" s left\r\x1B[K")) << bar;
    // Not in what is read there, nor for quick work, nor where nobody looks.
    EXPECT_EQ(terminal(slowly + transform).find('\x1B'), std::string::npos);
    EXPECT_EQ(terminal("yes 1 | head -n 4 | " + transform + "-o out"), "");
    EXPECT_EQ(terminal(slowly + transform + "-o out 2>log"), "");
    EXPECT_EQ(contents("log"), "");
}

// `limit` bytes are read, then the device fails.
class FailingRead : public ToolTest {
protected:
    // In the folder of the test: a space would end the name of what is loaded first.
    FailingRead() { std::filesystem::create_symlink(KFM_FAILING_READ, path("failing_read.so")); }

    Outcome run(int limit, const std::string& arguments) const {
        return shell("KFM_READ_LIMIT=" + std::to_string(limit) +
                     " LD_PRELOAD=./failing_read.so \"$kfmgen\" " + arguments);
    }
};

TEST_F(FailingRead, IsNoEnd) {
    if (KFM_SANITIZED) GTEST_SKIP() << "a sanitizer has to be loaded first";
    textFile("text", ones(20000));
    soundFile("wav", 8000, 2, std::vector<double>(40000, 0.25));
    soundFile("flac", 8000, 1, std::vector<double>(40000, 0.25), SF_FORMAT_FLAC | SF_FORMAT_PCM_16);
    const std::string transform = "transform --length 4 -o out ";
    const struct {
        std::string arguments;
        int limit;
        std::string line;
    } cases[] = {
        {"text", 0, "text: cannot be read: the device reports an error"},
        {"text", 40000 / 2, "text:9"},
        {"--channel 1 wav", 20, "wav: cannot be read: the device reports an error"},
        {"--channel 1 wav", 44 + 4 * 10000, "wav: cannot be read on after "},
        {"--raw s16le wav", 30000, "wav: cannot be read on after "},
        {"flac", 100, "flac: cannot be read"},
    };
    for (const auto& [arguments, limit, words] : cases) {
        SCOPED_TRACE(arguments + " after " + std::to_string(limit));
        textFile("out", "old");
        const Outcome outcome = run(limit, transform + arguments);
        expectRefusal(outcome, inputStatus, "kfmgen: " + words);
        expectRefusal(outcome, inputStatus, "the device reports an error\n");
        EXPECT_EQ(contents("out"), "old");
    }
    EXPECT_EQ(run(1 << 20, transform + "text").status, 0);
    EXPECT_EQ(run(1 << 20, transform + "--channel 1 wav").status, 0);
}

}   // namespace
}   // namespace kfm::test
