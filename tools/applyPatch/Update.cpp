#include "tools/applyPatch/Update.h"

#include <cstdio>
#include <iostream>

#include <fcntl.h>
#include <sys/stat.h>

#include "tools/applyPatch/FreeRoom.h"
#include "tools/applyPatch/Interruption.h"
#include "tools/applyPatch/NewMetadata.h"
#include "tools/applyPatch/TreeBuilder.h"
#include "tools/files/AtomicExchange.h"
#include "tools/files/ExtendedAttributes.h"
#include "tools/files/FileError.h"
#include "tools/files/Flush.h"
#include "tools/files/FolderEntries.h"
#include "tools/files/RemoveTree.h"

namespace tools {

namespace {

constexpr std::size_t kMostDifferencesTold = 50;

// Each time somebody else exchanged the folder between a look and a lock.
constexpr int kMostTries = 10;

ApplyError otherRun(const std::string& path) {
    return ApplyError(Ending::otherRun, path + ": another run is at work on it; wait for its end");
}

/// What is thrown of a tree's files names them from the tree's top on.
template <typename Work>
auto below(const std::string& top, Work work) {
    try {
        return work();
    } catch (const FileError& error) {
        throw refusal(error.path().empty() ? top : top + '/' + error.path(), error.code().value());
    } catch (const std::system_error& error) {
        throw refusal(top, error.code().value());
    }
}

} // namespace

Ending Update::apply() {
    const HeldFolder copy = recovered();
    const std::string& path = m_needs.copy.path();
    const Examination examination = examined(copy, Purpose::changing);
    if (examination.isNewVersion()) {
        std::cout << path << " is " << versionText() << " already.\n";
        return Ending::done;
    }
    if (!examination.applies())
        return reportDifferences(examination);
    below(m_needs.copy.parentPath(), [&] {
        const int parent = m_needs.copy.parent();
        const UpdatePlan::Room room = examination.plan().room(blockSize(parent));
        requireRoom(parent, m_needs.copy.parentPath(), room.bytes, room.entries);
    });
    const HeldFolder building = madeBuildingPlace();
    std::string oldName;
    try {
        build(examination, copy, building);
        oldName = exchanged(copy, building);
    } catch (...) {
        if (!m_leavesBuilding)
            removeBeside(building, m_needs.copy.buildingName());
        throw;
    }
    std::cout << path << " is " << versionText() << " now.\n";
    m_needs.progress.finish();
    removeOld(copy, oldName);
    return Ending::done;
}

Ending Update::tryOut() {
    const HeldFolder copy = openedToLook();
    const Examination examination = examined(copy, Purpose::looking);
    m_needs.progress.finish();
    if (examination.isNewVersion()) {
        m_needs.complaints.about(m_needs.copy.path(),
                                 "is " + versionText() + " already; there is nothing to do");
        return Ending::current;
    }
    return examination.applies() ? Ending::done : reportDifferences(examination);
}

Ending Update::verify() {
    const HeldFolder copy = openedToLook();
    const Examination examination = examined(copy, Purpose::looking);
    m_needs.progress.finish();
    if (examination.isNewVersion())
        return Ending::done;
    m_needs.complaints.about(m_needs.copy.path(), "is not " + versionText());
    return Ending::differs;
}

Examination Update::examined(const HeldFolder& folder, Purpose purpose) {
    return below(m_needs.copy.path(), [&] {
        return Examination({.folder = folder.number(),
                            .path = m_needs.copy.path(),
                            .manifest = m_needs.patch.manifest(),
                            .progress = m_needs.progress,
                            .passesClosedFolders = purpose == Purpose::looking});
    });
}

// Where an update was broken off between its last two steps the copy lies beside its place.
HeldFolder Update::openedToLook() const {
    const InstalledCopy& copy = m_needs.copy;
    std::optional<HeldFolder> folder = copy.open();
    if (!folder)
        folder = copy.openBeside(copy.asideName());
    if (!folder)
        throw ApplyError(Ending::usage,
                         copy.path() + ": no such folder; name the installed copy's with -d");
    if (folder->isLocked())
        throw otherRun(copy.path());
    return std::move(*folder);
}

Ending Update::reportDifferences(const Examination& examination) {
    const auto& differences = examination.differences();
    const std::string& version = m_needs.patch.manifest().oldVersion;
    m_needs.complaints.about(m_needs.copy.path(),
                             "is not " + (version.empty() ? "the version" : "version " + version) +
                                 " that the patch is for; install it anew. It differs in " +
                                 std::to_string(differences.size()) +
                                 (differences.size() == 1 ? " entry:" : " entries:"));
    for (std::size_t i = 0; i < std::min(differences.size(), kMostDifferencesTold); ++i)
        m_needs.complaints.about(differences[i].path, differences[i].text);
    if (differences.size() > kMostDifferencesTold)
        m_needs.complaints.about(m_needs.copy.path(),
                                 "and " +
                                     std::to_string(differences.size() - kMostDifferencesTold) +
                                     " more entries differ");
    return Ending::differs;
}

HeldFolder Update::recovered() {
    const InstalledCopy& copy = m_needs.copy;
    for (int i = 0; i < kMostTries; ++i) {
        std::optional<HeldFolder> folder = copy.open();
        if (!folder)
            folder = putInPlace();
        else if (!folder->lock())
            throw otherRun(copy.path());
        if (!folder || !folder->isAt(copy.parent(), copy.name()))
            continue;
        removeLeftovers(folder->owner());
        return std::move(*folder);
    }
    throw otherRun(copy.path());
}

// The copy is missing: an update by two renamings was broken off between them. What was built is
// then complete; that it is this patch's new version is looked at all the same, as the old one is
// there to be taken back.
std::optional<HeldFolder> Update::putInPlace() {
    const InstalledCopy& copy = m_needs.copy;
    std::optional<HeldFolder> aside = copy.openBeside(copy.asideName());
    if (!aside)
        throw ApplyError(Ending::usage,
                         copy.path() + ": no such folder; name the installed copy's with -d");
    std::optional<HeldFolder> building = copy.openBeside(copy.buildingName());
    if (!aside->lock() || (building && !building->lock()))
        throw otherRun(copy.path());
    if (!aside->isAt(copy.parent(), copy.asideName()) ||
        (building && !building->isAt(copy.parent(), copy.buildingName())))
        return std::nullopt;
    const bool isFinished =
        building && (building->owner() == aside->owner() || building->owner() == ::geteuid()) &&
        isNewVersion(*building);
    renameInParent(isFinished ? copy.buildingName() : copy.asideName(), copy.name());
    below(copy.parentPath(), [&] { flushFolder(copy.parent()); });
    std::cout << copy.path() << ": an update that was broken off was "
              << (isFinished ? "finished.\n" : "taken back.\n");
    return isFinished ? std::move(building) : std::move(aside);
}

bool Update::isNewVersion(const HeldFolder& folder) {
    try {
        return examined(folder, Purpose::changing).isNewVersion();
    } catch (const ApplyError&) {
        return false;
    }
}

void Update::removeLeftovers(uid_t owner) {
    const InstalledCopy& copy = m_needs.copy;
    if (copy.openBeside(copy.asideName()) && copy.openBeside(copy.buildingName()))
        throw ApplyError(Ending::refused,
                         copy.path() +
                             ": was put there after an update had been broken off; "
                             "remove what you do not need of " +
                             copy.beside(copy.asideName()) + " (the old version) and " +
                             copy.beside(copy.buildingName()) + " (the new one)");
    removeLeftover(copy.buildingName(), owner);
    removeLeftover(copy.asideName(), owner);
}

void Update::removeLeftover(const std::string& name, uid_t owner) {
    const InstalledCopy& copy = m_needs.copy;
    const std::optional<HeldFolder> leftover = copy.openBeside(name);
    if (!leftover)
        return;
    if (leftover->owner() != ::geteuid() && leftover->owner() != owner)
        throw copy.isInTheWay(name);
    if (!leftover->lock())
        throw otherRun(copy.path());
    below(copy.parentPath(), [&] { removeTree(copy.parent(), name, leftover->number()); });
}

HeldFolder Update::madeBuildingPlace() {
    const InstalledCopy& copy = m_needs.copy;
    const std::string& name = copy.buildingName();
    return below(copy.parentPath(), [&] {
        leaveIfInterrupted();
        checked(::mkdirat(copy.parent(), name.c_str(), S_IRWXU));
        try {
            return lockedBuildingPlace();
        } catch (...) {
            ::unlinkat(copy.parent(), name.c_str(), AT_REMOVEDIR);
            throw;
        }
    });
}

HeldFolder Update::lockedBuildingPlace() {
    const InstalledCopy& copy = m_needs.copy;
    std::optional<HeldFolder> building = copy.openBeside(copy.buildingName());
    // Somebody else's folder in its place would let them at what is built in it.
    if (!building || building->owner() != ::geteuid() || FolderEntries(building->number()).next())
        throw copy.isInTheWay(copy.buildingName());
    if (!building->lock())
        throw otherRun(copy.path());
    // What the folder above lets others do by inheritance is not what the copy lets them do.
    for (const std::string& attribute : attributeNames(building->number()))
        if (isAccessList(attribute))
            removeAttribute(building->number(), attribute);
    return std::move(*building);
}

void Update::build(const Examination& examination, const HeldFolder& copy,
                   const HeldFolder& building) {
    const UpdatePlan& plan = examination.plan();
    const std::string path = m_needs.copy.beside(m_needs.copy.buildingName());
    m_needs.progress.setTotal(examination.bytesRead() + plan.bytesToMake());
    below(path, [&] {
        TreeBuilder({.plan = plan,
                     .patch = m_needs.patch,
                     .copy = copy.number(),
                     .top = building.number(),
                     .path = path,
                     .progress = m_needs.progress})
            .build();
        leaveIfInterrupted();
        giveMetadata(building.number(), examination.top());
        flushAll(building.number());
    });
}

const std::string& Update::exchanged(const HeldFolder& copy, const HeldFolder& building) {
    const InstalledCopy& names = m_needs.copy;
    if (!copy.isAt(names.parent(), names.name()) ||
        !building.isAt(names.parent(), names.buildingName()))
        throw refusal(names.path(), ESTALE);
    passPointOfNoReturn();
    const auto exchange = [&] {
        return exchangeNames(names.parent(), names.buildingName().c_str(), names.name().c_str());
    };
    const int error = exchange();
    if (error == kNoExchange)
        return renamedBoth();
    if (error != 0)
        throw refusal(names.path(), error);
    // Somebody else was in between. That the disk can't tell is no reason to go back.
    if (copy.isSurelyNotAt(names.parent(), names.buildingName()) ||
        building.isSurelyNotAt(names.parent(), names.name())) {
        exchange();
        throw refusal(names.path(), ESTALE);
    }
    return names.buildingName();
}

// The next run finds the new version complete and the old one beside it wherever this is broken
// off.
const std::string& Update::renamedBoth() {
    const InstalledCopy& names = m_needs.copy;
    renameInParent(names.name(), names.asideName());
    try {
        below(names.parentPath(), [&] { flushFolder(names.parent()); });
        renameInParent(names.buildingName(), names.name());
    } catch (const ApplyError&) {
        m_leavesBuilding = true;
        renameInParent(names.asideName(), names.name());
        m_leavesBuilding = false;
        throw;
    }
    return names.asideName();
}

void Update::renameInParent(const std::string& from, const std::string& to) {
    const int parent = m_needs.copy.parent();
    if (::renameat(parent, from.c_str(), parent, to.c_str()) != 0)
        throw refusal(m_needs.copy.beside(from), errno);
}

// The exchange is on the disk before anything of the old version goes.
void Update::removeOld(const HeldFolder& old, const std::string& name) {
    try {
        flushFolder(m_needs.copy.parent());
    } catch (const std::exception& error) {
        m_needs.complaints.about(m_needs.copy.parentPath(), error);
        m_needs.complaints.about(m_needs.copy.beside(name),
                                 "is kept, as the disk may not know of the new version yet; the "
                                 "next run removes it");
        return;
    }
    removeBeside(old, name);
}

void Update::removeBeside(const HeldFolder& folder, const std::string& name) {
    const InstalledCopy& copy = m_needs.copy;
    try {
        removeTree(copy.parent(), name, folder.number());
    } catch (const std::exception& error) {
        m_needs.complaints.about(copy.beside(name), error);
        m_needs.complaints.about(copy.beside(name),
                                 "could not be removed as a whole; the next run does it");
    }
}

std::string Update::versionText() const {
    const patch::Manifest& manifest = m_needs.patch.manifest();
    std::string text = manifest.product.empty() ? "the version" : manifest.product;
    if (!manifest.newVersion.empty())
        text += (manifest.product.empty() ? " " : " version ") + manifest.newVersion;
    return manifest.product.empty() && manifest.newVersion.empty() ? "the new version" : text;
}

} // namespace tools
