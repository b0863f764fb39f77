// Checks the help sources before qhelpgenerator compiles them, so that the
// build fails rather than a user meeting a blank page: every page that a
// form's context number names is there with its anchor, every link of a page
// and every reference of the help project leads to a page and anchor that
// exist, every page has a title and is in the contents, and every file that
// the project lists is there.
//
//   kestrova-help-check HELP_FOLDER

#include "forms/model/help_contexts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>

#include <iostream>
#include <map>

namespace {

struct HelpFolder {
    QDir dir;
    std::map<QString, QString> pages; // file name to its text
    QStringList faults;

    void fault(const QString& text) { faults << text; }

    bool hasAnchor(const QString& page, const QString& anchor) const
    {
        const auto found = pages.find(page);
        if (found == pages.end())
            return false;
        const QRegularExpression id(QStringLiteral("\\b(id|name)=\"%1\"").arg(QRegularExpression::escape(anchor)));
        return id.match(found->second).hasMatch();
    }

    // A reference such as "orifice-plates.html#gas", from `where`.
    void checkReference(const QString& reference, const QString& where)
    {
        const qsizetype hash = reference.indexOf(u'#');
        const QString page = hash < 0 ? reference : reference.left(hash);
        const QString anchor = hash < 0 ? QString() : reference.mid(hash + 1);
        const QString target = page.isEmpty() ? where : page;
        if (!target.endsWith(QStringLiteral(".html"))) {
            if (!QFile::exists(dir.filePath(target)))
                fault(QStringLiteral("%1: the file %2 is missing").arg(where, target));
            return;
        }
        if (!pages.count(target))
            fault(QStringLiteral("%1: the page %2 is missing").arg(where, target));
        else if (!anchor.isEmpty() && !hasAnchor(target, anchor))
            fault(QStringLiteral("%1: %2 has no anchor \"%3\"").arg(where, target, anchor));
    }
};

QString readText(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll());
}

void readPages(HelpFolder& help)
{
    for (const QString& name : help.dir.entryList({QStringLiteral("*.html")}, QDir::Files, QDir::Name))
        help.pages[name] = readText(help.dir.filePath(name));
    if (help.pages.empty())
        help.fault(QStringLiteral("no pages in %1").arg(help.dir.path()));
}

void checkContexts(HelpFolder& help)
{
    for (const kestrova::help::Topic& topic : kestrova::help::topics())
        help.checkReference(QString::fromUtf8(topic.page), QStringLiteral("context %1").arg(topic.context));
}

void checkPages(HelpFolder& help)
{
    static const QRegularExpression title(QStringLiteral("<title>[^<]+</title>"));
    static const QRegularExpression link(QStringLiteral("href=\"([^\"]+)\""));
    for (const auto& [name, text] : help.pages) {
        if (!title.match(text).hasMatch())
            help.fault(name + QStringLiteral(": no title"));
        for (auto it = link.globalMatch(text); it.hasNext();) {
            const QString target = it.next().captured(1);
            if (!target.contains(u':'))
                help.checkReference(target, name);
        }
    }
}

void checkProject(HelpFolder& help)
{
    const QString project = readText(help.dir.filePath(QStringLiteral("kestrova.qhp")));
    if (project.isEmpty()) {
        help.fault(QStringLiteral("kestrova.qhp is missing"));
        return;
    }
    static const QRegularExpression ref(QStringLiteral("ref=\"([^\"]+)\""));
    QSet<QString> inContents;
    for (auto it = ref.globalMatch(project); it.hasNext();) {
        const QString target = it.next().captured(1);
        help.checkReference(target, QStringLiteral("kestrova.qhp"));
        inContents.insert(target.section(u'#', 0, 0));
    }
    for (const auto& entry : help.pages)
        if (!inContents.contains(entry.first))
            help.fault(entry.first + QStringLiteral(": in no entry of the contents or the index"));
    static const QRegularExpression file(QStringLiteral("<file>([^<*]+)</file>"));
    for (auto it = file.globalMatch(project); it.hasNext();) {
        const QString listed = it.next().captured(1);
        if (!QFile::exists(help.dir.filePath(listed)))
            help.fault(QStringLiteral("kestrova.qhp: the file %1 is missing").arg(listed));
    }
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc != 2) {
        std::cerr << "usage: kestrova-help-check HELP_FOLDER\n";
        return 2;
    }
    HelpFolder help{QDir(QString::fromLocal8Bit(argv[1])), {}, {}};
    readPages(help);
    checkContexts(help);
    checkPages(help);
    checkProject(help);
    for (const QString& text : help.faults)
        std::cerr << "help: " << text.toStdString() << '\n';
    return help.faults.isEmpty() ? 0 : 1;
}
