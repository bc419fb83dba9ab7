// Stands in for the widget extension: the kind that a request names says how to behave.

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <thread>
#include <tuple>

#include "messages/channel.hpp"
#include "messages/replies.hpp"
#include "messages/requests.hpp"

namespace {

using foundation::JSON;

constexpr int connection = 3;
bool isStubborn = false;

[[noreturn]] void hang() {
  for (;;) std::this_thread::sleep_for(std::chrono::hours(1));
}

void sendRaw(const std::string& bytes) {
  if (write(connection, bytes.data(), bytes.size()) < 0) _exit(1);
}

void complain(const std::string& text) {
  std::fputs(text.c_str(), stderr);
}

void flood() {
  const std::string line = std::string(1023, 'x') + "\n";
  for (int count = 0; count < 1024; ++count) complain(line);
}

/// What happens before the answer, which may then never come.
const std::map<std::string, void (*)()> misbehaviours = {
    {"hang", [] { hang(); }},
    {"suspend", [] { raise(SIGSTOP); }},
    {"die", [] { complain("first line\nitem 7 has no identifier\n\n"), _exit(70); }},
    {"dieSilently", [] { _exit(3); }},
    {"crash", [] { raise(SIGKILL); }},
    {"close", [] { close(connection), hang(); }},
    {"garbage", [] { sendRaw(std::string(64, '\xff')); }},
    {"halfFrame", [] { sendRaw(std::string("\0\0\0\x10", 4)), _exit(0); }},
    {"halfFrameHang", [] { sendRaw(std::string("\0\0\0\x10", 4)), hang(); }},
    {"wrongFields", [] { std::ignore = messages::Channel(connection).send({{"reply", "timeline"}, {"kind", 5}}); }},
    {"flood", [] { flood(); }},
    {"floodAndDie", [] { flood(), complain("the end"), _exit(1); }},
    {"debug", [] { std::puts("a debug line"), std::fflush(stdout); }},
    {"stubborn", [] { isStubborn = true; }},
};

JSON openDescriptors() {
  auto descriptors = JSON::array();
  for (int descriptor = 0; descriptor < 256; ++descriptor) {
    if (fcntl(descriptor, F_GETFD) >= 0) descriptors.push_back(descriptor);
  }
  return descriptors;
}

const messages::Catalogue catalogue = {.widgets = {{.kind = "Fake_Widgets",
                                                    .shortName = "tasks",
                                                    .displayName = "Tasks",
                                                    .description = "Today's tasks",
                                                    .families = {"systemSmall", "systemMedium"}},
                                                   {.kind = "Fake_Widgets2",
                                                    .shortName = "moods",
                                                    .displayName = "Moods",
                                                    .description = "A month",
                                                    .families = {"systemLarge"}}}};

messages::Reply answer(const messages::AskProvider& request, const messages::World& world) {
  using messages::Failure;
  if (request.kind == "unknown") return Failure{Failure::Reason::usage, "unknown kind 'unknown': tasks, moods"};
  if (request.kind == "broken") return Failure{Failure::Reason::failed, "a file\nis broken"};
  if (request.kind == "mismatch") return catalogue;

  messages::Timeline timeline = {.kind = "Fake_" + request.kind, .policy = {{"after", "2026-11-22T00:00:00Z"}}};
  const auto add = [&](const char* date, const char* title) {
    timeline.entries.push_back({{"date", date}, {"title", title}, {"items", {1, 2}}});
  };
  if (request.operation != messages::ProviderOperation::timeline) {
    add("2020-01-01T00:00:00Z", request.operation == messages::ProviderOperation::snapshot ? "sample" : "waiting");
  } else if (request.kind == "undated") {
    timeline.entries = {{{"title", "someday"}}};
  } else if (request.kind == "world") {
    timeline.entries = {{{"date", "2026-11-21T00:00:00Z"}, {"world", world}}};
  } else if (request.kind == "descriptors") {
    timeline.entries = {{{"date", "2026-11-21T00:00:00Z"}, {"open", openDescriptors()}}};
  } else if (request.kind != "empty") {
    add("2026-11-21T00:00:00Z", "morning");
    add("2026-11-21T12:00:00Z", "noon");
  }
  return timeline;
}

messages::Reply answer(const messages::DescribeCatalogue&, const messages::World&) {
  return catalogue;
}

/// The picture's bytes are the request.
messages::Reply answer(const messages::DrawEntry& request, const messages::World& world) {
  return messages::Picture{.bytes = JSON(messages::Envelope{.world = world, .request = request}).dump()};
}

messages::Reply answer(const auto&, const messages::World&) {
  return messages::Failure{messages::Failure::Reason::failed, "the fake knows no such request"};
}

}  // namespace

int main() {
  messages::Channel channel(connection);
  while (const auto frame = channel.receive()) {
    const auto envelope = frame->header.get<messages::Envelope>();
    if (const auto* request = std::get_if<messages::AskProvider>(&envelope.request)) {
      if (const auto found = misbehaviours.find(request->kind); found != misbehaviours.end()) found->second();
    }
    const auto reply =
        std::visit([&](const auto& request) { return answer(request, envelope.world); }, envelope.request);
    const auto* picture = std::get_if<messages::Picture>(&reply);
    if (!channel.send(reply, picture ? picture->bytes : "")) return 1;
  }
  if (isStubborn) hang();
  return 0;
}
