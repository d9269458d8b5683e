// SPDX-License-Identifier: MIT
/// The user's folders by the environment: a full path or none, never one that depends on the current folder.
#include "platform/files/user_folders.h"

#include <gtest/gtest.h>

#include "support/environment.h"

namespace mero::platform {
namespace {

using test::Environment;

TEST(UserFolders, AreWhereTheVariablesSay) {
    const Environment home("HOME", "/home/jana");
    const Environment data("XDG_DATA_HOME", "/data ěš");
    const Environment config("XDG_CONFIG_HOME", "/config");
    const Environment state("XDG_STATE_HOME", "/state");
    EXPECT_EQ(userFolder(UserFolder::Data), "/data ěš/mero");
    EXPECT_EQ(userFolder(UserFolder::Config), "/config/mero");
    EXPECT_EQ(userFolder(UserFolder::State), "/state/mero");
}

TEST(UserFolders, AreBelowTheHomeWhereAVariableIsNoFullPath) {
    const Environment home("HOME", "/home/jana");
    const Environment data("XDG_DATA_HOME", "relative/path");
    const Environment config("XDG_CONFIG_HOME", "");
    const Environment state("XDG_STATE_HOME", std::nullopt);
    EXPECT_EQ(userFolder(UserFolder::Data), "/home/jana/.local/share/mero");
    EXPECT_EQ(userFolder(UserFolder::Config), "/home/jana/.config/mero");
    EXPECT_EQ(userFolder(UserFolder::State), "/home/jana/.local/state/mero");
}

TEST(UserFolders, AreNoneWithoutAFullPath) {
    const Environment data("XDG_DATA_HOME", std::nullopt);
    for (const auto& unusable : {std::optional<std::string>(), std::optional<std::string>(""),
                                 std::optional<std::string>("jana"), std::optional<std::string>("./x")}) {
        const Environment home("HOME", unusable);
        EXPECT_EQ(userFolder(UserFolder::Data), std::nullopt) << unusable.value_or("not set");
    }
}

TEST(UserFolders, NeedNoHomeWhereTheVariableIsSet) {
    const Environment home("HOME", std::nullopt);
    const Environment data("XDG_DATA_HOME", "/data");
    EXPECT_EQ(userFolder(UserFolder::Data), "/data/mero");
}

}  // namespace
}  // namespace mero::platform
