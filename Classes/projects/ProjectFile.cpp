// SPDX-License-Identifier: MIT
#include "Classes/projects/ProjectFile.h"

#include "platform/foundation/files/PrivateFiles.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/values/Assertions.h"

#include <QFileInfo>

namespace {

const QString kFileName = QStringLiteral("Ticklog Projects");

} // namespace

ProjectFile::ProjectFile(const QString& documentsFolder, SystemLog& log, AccountTrouble& trouble)
    : m_log(log)
    , m_trouble(trouble) {
    if (!documentsFolder.isEmpty())
        m_path = pathIn(documentsFolder);
}

QString ProjectFile::pathIn(const QString& documentsFolder) {
    return documentsFolder + u'/' + kFileName;
}

PropertyListArray ProjectFile::read() {
    m_isDamaged = false;
    if (!m_path)
        return {};
    const Result<PropertyListValue> file = PropertyList::readFile(*m_path);
    if (!file && file.failure().kind == Failure::Kind::NotFound)
        return {};
    const PropertyListArray* records = file ? file->asArray() : nullptr;
    // Whether these are projects at all is seen by the last record.
    if (records && (records->empty() || records->back().asDictionary()))
        return *records;
    m_isDamaged = true;
    m_trouble.tell(AccountTrouble::Kind::ProjectsSetAside, AccountTrouble::setAside(*m_path));
    m_log.log(QStringLiteral("The projects cannot be read and start empty: ") +
              (file ? QStringLiteral("no list of projects") : file.failure().text));
    return {};
}

bool ProjectFile::write(const PropertyListArray& projects) {
    if (!m_path)
        return true;
    const bool isWritten = setAsideDamaged() && replace(projects);
    if (isWritten)
        m_trouble.end(AccountTrouble::Kind::ProjectsUnwritten);
    else
        m_trouble.tell(AccountTrouble::Kind::ProjectsUnwritten, AccountTrouble::unwritten(*m_path));
    return isWritten;
}

bool ProjectFile::replace(const PropertyListArray& projects) {
    // Many users have no documents folder until something needs one.
    static_cast<void>(PrivateFiles::makeFolder(QFileInfo(*m_path).path()));
    try {
        const Outcome outcome = PropertyList::writeBinaryFile(projects, *m_path);
        if (!outcome)
            m_log.log(QStringLiteral("The projects could not be written: ") + outcome.failure().text);
        return bool(outcome);
    } catch (const InternalInconsistency& failure) {
        // A value that no property list can hold. The old file stays.
        m_log.log(failure.description());
        return false;
    }
}

// False if the damaged file is still in its place.
bool ProjectFile::setAsideDamaged() {
    if (!m_isDamaged)
        return true;
    const Result<QString> aside = PrivateFiles::setAside(*m_path);
    m_isDamaged = !aside && aside.failure().kind != Failure::Kind::NotFound;
    if (m_isDamaged)
        m_log.log(
            QStringLiteral("The projects were not written, because the file that cannot be read could not "
                           "be set aside: ") +
            aside.failure().text);
    else if (aside)
        m_log.log(QStringLiteral("The projects file that could not be read was set aside: ") + *aside);
    return !m_isDamaged;
}
