// SPDX-License-Identifier: MIT
#include "../PracticeSite.h"
#include "ProxyServer.h"

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <thread>
#include <unistd.h>

namespace {

constexpr const char* usage =
    "usage: quillmere-practice-site [--port N] [--seed N] [--no-stdin]\n"
    "Serves the practice site on 127.0.0.1 as an HTTP proxy and prints \"port N\".\n"
    "Ends when its standard input does, unless --no-stdin is given.\n";

struct Options {
    int port = 0;
    quint64 seed = 1;
    bool watchInput = true;
    bool good = true;
};

template <typename Number> bool Parse(const char* text, Number& number) {
    const char* end = text + std::strlen(text);
    const auto result = std::from_chars(text, end, number);
    return result.ec == std::errc() && result.ptr == end;
}

Options ParseOptions(int count, char** words) {
    Options options;
    for (int i = 1; i < count && options.good; ++i) {
        const std::string_view word = words[i];
        if (word == "--no-stdin")
            options.watchInput = false;
        else if (word == "--port" && i + 1 < count)
            options.good = Parse(words[++i], options.port) && options.port >= 0 && options.port <= 65535;
        else if (word == "--seed" && i + 1 < count)
            options.good = Parse(words[++i], options.seed);
        else
            options.good = false;
    }
    return options;
}

// A parent that dies, however suddenly, closes this pipe.
void AwaitEndOfInput() {
    char unused[256];
    while (::read(STDIN_FILENO, unused, sizeof unused) > 0) {
    }
}

} // namespace

int main(int argc, char** argv) {
    const Options options = ParseOptions(argc, argv);
    if (!options.good) {
        std::fputs(usage, stderr);
        return 2;
    }
    qlm::practice::PracticeSite site(options.seed);
    qlm::practice::ProxyServer server(site);
    const int port = server.Bind(options.port);
    if (port < 0) {
        std::fprintf(stderr, "quillmere-practice-site: port %d can't be had\n", options.port);
        return 1;
    }
    std::printf("port %d\n", port);
    std::fflush(stdout);

    if (!options.watchInput)
        return server.Run() ? 0 : 1;
    std::thread serving([&server] {
        if (!server.Run())
            std::fputs("quillmere-practice-site: listening has ended\n", stderr);
    });
    AwaitEndOfInput();
    server.Stop();
    serving.join();
    return 0;
}
