// All fakes together as one ports::Host, and what the install log holds.
#pragma once

#include <string>
#include <vector>

#include "platform/ports/Host.h"
#include "tests/fakes/FakeAdministrator.h"
#include "tests/fakes/FakeAlertSheets.h"
#include "tests/fakes/FakeAppearance.h"
#include "tests/fakes/FakeApplications.h"
#include "tests/fakes/FakeBundles.h"
#include "tests/fakes/FakeClock.h"
#include "tests/fakes/FakeFileChoosers.h"
#include "tests/fakes/FakeFinderFiles.h"
#include "tests/fakes/FakeInterfaceFiles.h"
#include "tests/fakes/FakeLocalizedTexts.h"
#include "tests/fakes/FakeModalLoop.h"
#include "tests/fakes/FakePropertyLists.h"
#include "tests/fakes/FakeQueues.h"
#include "tests/fakes/FakeReader.h"
#include "tests/fakes/FakeSystemLog.h"
#include "tests/fakes/FakeTextStreams.h"
#include "tests/fakes/FakeTools.h"

namespace fakes {

struct FakeHost {
    ports::SystemPlaces places{.root = "", .home = "/Users/someone", .temporary = "/tmp"};
    FakeClock clock;
    FakeSystemLog systemLog;
    FakeTextStreams streams;
    FakeTools tools{streams};
    FakeAdministrator administrator{streams};
    FakeApplications applications;
    FakeFinderFiles finderFiles;
    FakeBundles bundles;
    FakePropertyLists propertyLists;
    FakeLocalizedTexts texts;
    FakeMainQueue mainQueue;
    FakeBackgroundQueue backgroundQueue;
    FakeInterfaceFiles interfaceFiles;
    FakeAlertSheets alertSheets;
    FakeModalLoop modalLoop;
    FakeAppearance appearance;
    FakeFileChoosers fileChoosers;
    FakeReader reader;
    FakeBeeper beeper;
    ports::Watchers watchers;

    ports::Host host() {
        return {.places = places,
                .clock = clock,
                .systemLog = systemLog,
                .streams = streams,
                .tools = tools,
                .administrator = administrator,
                .applications = applications,
                .finderFiles = finderFiles,
                .bundles = bundles,
                .propertyLists = propertyLists,
                .texts = texts,
                .mainQueue = mainQueue,
                .backgroundQueue = backgroundQueue,
                .interfaceFiles = interfaceFiles,
                .alertSheets = alertSheets,
                .modalLoop = modalLoop,
                .appearance = appearance,
                .fileChoosers = fileChoosers,
                .reader = reader,
                .beeper = beeper,
                .watchers = watchers};
    }

    /// The log's lines without their dates.
    std::vector<std::string> logged() const {
        constexpr std::size_t kDate = sizeof "2001-02-03 04:05:06 +0000 " - 1;
        std::vector<std::string> lines;
        for (const std::string& line : streams.appended)
            lines.push_back(line.substr(kDate, line.size() - kDate - 1));
        return lines;
    }
};

} // namespace fakes
