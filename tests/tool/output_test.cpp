// What becomes of the output: complete or as it was before, and a status that tells.
#include "run_tool.h"

namespace kfm::test {
namespace {

class Output : public ToolTest {
protected:
    static inline const std::string rows = "frame,index,re,im\n0,0,3,0\n0,1,-1,0\n";

    // Under `limit` blocks of 512 bytes a file, which fails as a full disk does.
    Outcome runLimited(int limit, const std::string& arguments, const std::string& input) const {
        return shell("ulimit -f " + std::to_string(limit) + "; \"$kfmgen\" " + arguments, input);
    }

    std::filesystem::perms permissions(const std::string& name) const {
        return std::filesystem::status(path(name)).permissions();
    }
};

using std::filesystem::perms;

TEST_F(Output, RunsThatFailLeaveTheOldFile) {
    const std::string samples = ones(100000);
    const std::string text = textFile("text", samples + "x\n");
    for (const std::string arguments :
         {"transform --length 2 -o out text", "transform --length 2 -o text text",
          "transform --length 2 -o out absent", "transform --length 65 -o out"}) {
        SCOPED_TRACE(arguments);
        textFile("out", "old\n");
        EXPECT_NE(run(arguments, "1\n").status, 0);
        EXPECT_EQ(contents("out"), "old\n");
        EXPECT_EQ(contents("text").size(), samples.size() + 2);
        EXPECT_EQ(names(), (std::vector<std::string>{"out", "text"}));
    }
}

TEST_F(Output, ReplacesItsOwnInput) {
    textFile("file", "1\n2\n");
    EXPECT_EQ(run("transform --length 2 -o file file").status, 0);
    EXPECT_EQ(contents("file"), rows);
}

TEST_F(Output, InterruptedRunLeavesNothing) {
    textFile("out", "old");
    const Outcome outcome =
        shell("mkfifo fifo; { yes 1 | head -n 100; exec sleep 60; } >fifo & writer=$!\n"
              "\"$kfmgen\" transform --length 2 -o out fifo & tool=$!\n"
              "for i in {1..200}; do compgen -G '.kfmgen-*' && break; sleep 0.05; done\n"
              "kill $tool; wait $tool; echo $?; kill $writer; rm fifo");
    EXPECT_TRUE(outcome.out.starts_with(".kfmgen-")) << outcome.out;
    EXPECT_TRUE(outcome.out.ends_with("\n143\n")) << outcome.out;   // by the signal
    EXPECT_EQ(contents("out"), "old");
    EXPECT_EQ(names(), std::vector<std::string>{"out"});
}

TEST_F(Output, LinksAndPermissionsStay) {
    std::filesystem::create_directory(path("folder"));
    textFile("folder/real", "old\n");
    std::filesystem::permissions(path("folder/real"), perms::owner_read | perms::owner_write);
    std::filesystem::create_symlink("folder/real", path("link"));
    std::filesystem::create_symlink("folder/new", path("dangling"));
    EXPECT_EQ(run("transform --length 2 -o link", "1\n2\n").status, 0);
    EXPECT_EQ(run("transform --length 2 -o dangling", "1\n2\n").status, 0);
    for (const std::string link : {"link", "dangling"}) {
        EXPECT_TRUE(std::filesystem::is_symlink(path(link))) << link;
        EXPECT_EQ(contents(link), rows);
    }
    EXPECT_EQ(permissions("folder/real"), perms::owner_read | perms::owner_write);
    shell("umask 027; \"$kfmgen\" transform --length 2 -o masked", "1\n2\n");
    EXPECT_EQ(permissions("masked"), perms::owner_read | perms::owner_write | perms::group_read);
}

TEST_F(Output, DevicesAndPipesAreWrittenAsTheyStand) {
    EXPECT_EQ(run("transform --length 2 -o /dev/null", "1\n2\n").status, 0);
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
    EXPECT_EQ(run("transform --length 2 -o /dev/stdout", "1\n2\n").out, rows);
    EXPECT_EQ(run("transform --length 2 -o -", "1\n2\n").out, rows);
    shell("echo first > all; \"$kfmgen\" transform --length 2 -o /dev/stdout >> all", "1\n2\n");
    EXPECT_EQ(contents("all"), "first\n" + rows);
    EXPECT_EQ(shell("mkfifo fifo; cat fifo & \"$kfmgen\" transform --length 2 -o fifo; wait",
                    "1\n2\n")
                  .out,
              rows);
}

TEST_F(Output, WhatCannotBeWrittenHasAStatusOfItsOwn) {
    const std::string samples = ones(100000);
    const std::string transform = "transform --length 2 ";
    for (const std::string& command :
         {std::string("list"), std::string("list --names"), std::string("info"),
          std::string("--help"), std::string("transform --help"), std::string("--version"),
          transform}) {
        SCOPED_TRACE(command);
        expectRefusal(run(command + " >/dev/full", samples), outputStatus,
                      "kfmgen: standard output: cannot be written: no space is left\n");
        expectRefusal(run(command + " >&-", samples), outputStatus,
                      "kfmgen: standard output: cannot be written: it is closed\n");
    }
    expectRefusal(run(transform + "-o /dev/full", samples), outputStatus,
                  "kfmgen: /dev/full: cannot be written: no space is left\n");
    for (const int limit : {1, 64}) {
        textFile("out", "old");
        expectRefusal(runLimited(limit, transform + "-o out", samples), outputStatus,
                      "kfmgen: out: cannot be written: the file would be larger than allowed\n");
        EXPECT_EQ(contents("out"), "old");
        EXPECT_EQ(names(), std::vector<std::string>{"out"});
    }
}

// A closed descriptor must not be given to the file that is read.
TEST_F(Output, ClosedDescriptorsAreLeftAlone) {
    textFile("file", "1\n2\n");
    EXPECT_EQ(run("transform --length 2 -o out file <&- >&- 2>&-").status, 0);
    EXPECT_EQ(contents("out"), rows);
    EXPECT_EQ(run("transform --length 2 -o out absent >&- 2>&-").status, inputStatus);
    EXPECT_EQ(contents("out"), rows);
    EXPECT_EQ(contents("file"), "1\n2\n");
    expectRefusal(run("transform --length 2 <&-"), inputStatus,
                  "kfmgen: standard input: cannot be read: it is closed\n");
}

TEST_F(Output, ReaderThatLeavesEndsTheRun) {
    const std::string command = "yes 1 2>/dev/null | \"$kfmgen\" transform --length 2";
    EXPECT_EQ(shell("set -o pipefail; " + command + " | head -n1").out, "frame,index,re,im\n");
    const std::string unread = "{ " + command + " 2>&3; echo $? >&4; } 3>&2 4>status | true";
    expectRefusal(shell("trap '' PIPE; " + unread), 0,
                  "kfmgen: standard output: cannot be written: nobody reads it\n");
    EXPECT_EQ(contents("status"), std::to_string(outputStatus) + "\n");
}

TEST_F(Output, PlacesWhereNoFileCanBe) {
    textFile("file", "old");
    std::filesystem::create_symlink("circle", path("circle"));
    const struct {
        std::string name;
        const char* reason;
    } cases[] = {
        {"absent/out", "there is no such file or folder"},
        {"file/out", "a part of the path is no folder"},
        {"new/", "there is no such file or folder"},
        {".", "it is a folder"},
        {"circle", "its symbolic links lead in a circle"},
        {std::string(300, 'a'), "the name is too long"},
        {"''", "there is no such file or folder"},
    };
    for (const auto& [name, reason] : cases) {
        SCOPED_TRACE(name);
        expectRefusal(run("transform --length 2 -o " + name, "1\n2\n"), outputStatus,
                      std::string(": cannot be written: ") + reason + "\n");
        EXPECT_EQ(contents("file"), "old");
    }
}

}   // namespace
}   // namespace kfm::test
