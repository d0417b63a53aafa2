// The manual page and the completions: as complete as the help, and understood by who reads them.
#include "run_tool.h"

namespace kfm::test {
namespace {

using Documentation = ToolTest;

TEST_F(Documentation, CompletionInBash) {
    const auto completed = [&](const std::string& words) {
        return shell("source <(\"$kfmgen\" documentation --bash) 2>&1; COMP_WORDS=(" + words +
                     "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _kfmgen 2>&1; "
                     "echo \"${COMPREPLY[@]}\"")
            .out;
    };
    textFile("sound.wav", "");
    EXPECT_EQ(completed("kfmgen ''"),
              "info list transform spectrum spectrogram bench accuracy --help --version\n");
    EXPECT_EQ(completed("kfmgen spectr"), "spectrum spectrogram\n");
    EXPECT_EQ(completed("kfmgen transform --pre"), "--precision\n");
    EXPECT_EQ(completed("kfmgen transform --precision ''"), "double single\n");
    EXPECT_EQ(completed("kfmgen transform --layout p"), "pack perm\n");
    EXPECT_EQ(completed("kfmgen transform --channel ''"), "mix\n");
    EXPECT_EQ(completed("kfmgen spectrogram --window none so"), "sound.wav\n");
    EXPECT_EQ(completed("kfmgen spectrogram -o so"), "sound.wav\n");
}

TEST_F(Documentation, EveryOptionIsInAllOfThem) {
    const std::string options =
        shell(
            "for c in info list transform spectrum spectrogram bench accuracy; do \"$kfmgen\" $c --help; done |"
            " grep -o '^ *--[a-z-]*' | tr -d ' ' | sort -u")
            .out;
    EXPECT_GT(std::count(options.begin(), options.end(), '\n'), 20);
    textFile("options", options);
    for (const std::string form : {"--man", "--bash", "--zsh"})
        EXPECT_EQ(shell("\"$kfmgen\" documentation " + form +
                        " | tr -d '\\\\' > document; while read -r option; do "
                        "grep -qF -e \"$option\" document || echo \"$option\"; done < options")
                      .out,
                  "")
            << form;
    EXPECT_EQ(run("--help").out.find("documentation"), std::string::npos);
}

TEST_F(Documentation, ItsReadersTakeIt) {
    if (shell("zsh --version").status == 0) {
        EXPECT_EQ(shell("\"$kfmgen\" documentation --zsh > _kfmgen; zsh -n _kfmgen 2>&1").out, "");
    }
    if (shell("groff --version").status == 0) {
        const Outcome page = shell("\"$kfmgen\" documentation --man | groff -man -ww -z 2>&1");
        EXPECT_EQ(page.out, "");
    }
}

}   // namespace
}   // namespace kfm::test
