// All that the core asks of its host, handed in as one value by the composition root. Holds
// references; whoever makes it keeps the adapters alive.
#pragma once

#include "platform/ports/Administrator.h"
#include "platform/ports/Applications.h"
#include "platform/ports/Bundles.h"
#include "platform/ports/Clock.h"
#include "platform/ports/FinderFiles.h"
#include "platform/ports/FrontEnd.h"
#include "platform/ports/LocalizedTexts.h"
#include "platform/ports/PropertyLists.h"
#include "platform/ports/Queues.h"
#include "platform/ports/SystemLog.h"
#include "platform/ports/SystemPlaces.h"
#include "platform/ports/TextStreams.h"
#include "platform/ports/Tools.h"
#include "platform/ports/Watchers.h"

namespace ports {

struct Host {
    const SystemPlaces& places;
    Clock& clock;
    SystemLog& systemLog;
    TextStreams& streams;
    Tools& tools;
    Administrator& administrator;
    Applications& applications;
    FinderFiles& finderFiles;
    Bundles& bundles;
    PropertyLists& propertyLists;
    LocalizedTexts& texts;
    MainQueue& mainQueue;
    BackgroundQueue& backgroundQueue;
    InterfaceFiles& interfaceFiles;
    AlertSheets& alertSheets;
    ModalLoop& modalLoop;
    Appearance& appearance;
    FileChoosers& fileChoosers;
    Reader& reader;
    Beeper& beeper;
    Watchers watchers = {};
};

} // namespace ports
