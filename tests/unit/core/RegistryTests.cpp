// SPDX-License-Identifier: MIT
#include "PrintText.h"
#include "core/Registry.h"
#include "platform/sim/SimServices.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

constexpr auto User = modRegistry::Root::CurrentUser;
constexpr auto Machine = modRegistry::Root::LocalMachine;
const QString Sounds = u"AppEvents\\Schemes"_s;

class RegistryTest : public testing::Test {
protected:
    QStringList Names(modRegistry::Root root, const QString& path) {
        QStringList names = registry.EnumerateValues(root, path);
        names.sort();
        return names;
    }
    SimSettings store;
    modRegistry registry{store};
};

TEST_F(RegistryTest, TextsAndNumbersComeBack) {
    registry.WriteString(User, Sounds, u"name"_s, u"text"_s);
    registry.WriteNumber(User, Sounds, u"number"_s, -7);
    EXPECT_EQ(registry.ReadString(User, Sounds, u"name"_s, u"x"_s), u"text"_s);
    EXPECT_EQ(registry.ReadNumber(User, Sounds, u"number"_s, 1), -7);
    EXPECT_EQ(registry.ReadString(User, Sounds, u"number"_s, u"x"_s), u"-7"_s);
}

TEST_F(RegistryTest, WhatIsMissingOrNoNumberGivesTheFallback) {
    registry.WriteString(User, Sounds, u"name"_s, u"text"_s);
    EXPECT_EQ(registry.ReadString(User, Sounds, u"other"_s, u"x"_s), u"x"_s);
    EXPECT_EQ(registry.ReadString(User, u"AppEvents\\None"_s, u"name"_s, u"x"_s), u"x"_s);
    EXPECT_EQ(registry.ReadNumber(User, Sounds, u"name"_s, 3), 3);
    EXPECT_EQ(registry.ReadNumber(User, Sounds, u"other"_s, 3), 3);
}

TEST_F(RegistryTest, TheRootsAreApart) {
    registry.WriteString(User, u"Software\\Microsoft"_s, u"v"_s, u"user"_s);
    registry.WriteString(Machine, u"Software\\Microsoft"_s, u"v"_s, u"machine"_s);
    EXPECT_EQ(registry.ReadString(User, u"Software\\Microsoft"_s, u"v"_s, {}), u"user"_s);
    EXPECT_EQ(registry.ReadString(Machine, u"Software\\Microsoft"_s, u"v"_s, {}), u"machine"_s);
    registry.DeleteKey(Machine, u"Software"_s);
    EXPECT_EQ(registry.ReadString(User, u"Software\\Microsoft"_s, u"v"_s, {}), u"user"_s);
    EXPECT_EQ(registry.ReadString(Machine, u"Software\\Microsoft"_s, u"v"_s, u"x"_s), u"x"_s);
}

TEST_F(RegistryTest, TheValuesOfAKeyAreItsOwn) {
    registry.WriteString(User, Sounds, u"a"_s, u"1"_s);
    registry.WriteString(User, Sounds, u"b"_s, u"2"_s);
    registry.WriteString(User, Sounds + u"\\Apps"_s, u"c"_s, u"3"_s);
    EXPECT_EQ(Names(User, Sounds), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(Names(User, u"AppEvents"_s), QStringList());
}

TEST_F(RegistryTest, TheProgramsSettingsAreABranch) {
    store.SaveSetting(u"General"_s, u"Width"_s, u"800"_s);
    EXPECT_EQ(registry.ReadNumber(User, modRegistry::AppBranch + u"\\General"_s, u"Width"_s, 0), 800);
    registry.WriteString(User, modRegistry::AppBranch + u"\\Counters\\a@example.com"_s, u"k"_s, u"1"_s);
    EXPECT_EQ(store.GetSetting(u"Counters\\a@example.com"_s, u"k"_s, {}), u"1"_s);
    EXPECT_EQ(Names(User, modRegistry::AppBranch + u"\\General"_s), QStringList{u"Width"_s});
}

TEST_F(RegistryTest, AKeyGoesWithAllItsSubKeysAndNothingBesides) {
    for (const QString& section : {u"Counters"_s, u"Counters\\a"_s, u"Counters\\a\\b"_s, u"Counters2"_s})
        store.SaveSetting(section, u"k"_s, u"1"_s);
    registry.DeleteKey(User, modRegistry::AppBranch + u"\\Counters"_s);
    EXPECT_EQ(store.Sections(), QStringList{u"Counters2"_s});
    registry.DeleteKey(User, u"AppEvents\\None"_s);
    EXPECT_EQ(store.Sections(), QStringList{u"Counters2"_s});
}

TEST_F(RegistryTest, TheWholeBranchGoesWithoutTheUsersOtherKeys) {
    store.SaveSetting(u"General"_s, u"Width"_s, u"800"_s);
    store.SaveSetting(u"Field Entries\\a@example.com"_s, u"txtFRNote"_s, u"x"_s);
    registry.WriteString(User, Sounds, u".Current"_s, u"click.wav"_s);
    registry.WriteString(User, u"Software\\Microsoft"_s, u"v"_s, u"1"_s);
    registry.DeleteKey(User, modRegistry::AppBranch);
    EXPECT_FALSE(store.HasSection(u"General"_s));
    EXPECT_FALSE(store.HasSection(u"Field Entries"_s));
    EXPECT_EQ(registry.ReadString(User, Sounds, u".Current"_s, {}), u"click.wav"_s);
    EXPECT_EQ(registry.ReadString(User, u"Software\\Microsoft"_s, u"v"_s, {}), u"1"_s);
}

TEST_F(RegistryTest, AKeyAboveTheBranchTakesTheBranchWithIt) {
    store.SaveSetting(u"General"_s, u"Width"_s, u"800"_s);
    registry.WriteString(User, Sounds, u"k"_s, u"1"_s);
    registry.DeleteKey(User, u"Software"_s);
    EXPECT_EQ(store.Sections(), QStringList{Sounds});
}

} // namespace
} // namespace qlm
