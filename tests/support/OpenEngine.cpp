// SPDX-License-Identifier: MIT
// For tests that show one site after the other, each at a port of its own: a platform confines the engine of
// its process to the first one. An engine that runs before there is a platform stays open.
#include <QWebEngineProfile>
#include <gtest/gtest.h>

namespace {

class OpenEngine : public ::testing::Environment {
public:
    void SetUp() override { const QWebEngineProfile first; }
};

[[maybe_unused]] const auto* const registered = ::testing::AddGlobalTestEnvironment(new OpenEngine);

} // namespace
