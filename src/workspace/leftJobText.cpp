#include "leftJobText.h"

#include "values/units.h"

using namespace Qt::StringLiterals;

namespace workspace {

namespace {

QString whatHappened(const PanelContent& content)
{
    return content.isRefused ? u"could not be saved"_s : u"was open when Penwright ended"_s;
}

QString figures(const PanelContent& content)
{
    const QString clock = u"%1 on the clock"_s.arg(content.timer.clockText());
    return content.captions[jobValue::Unit] == values::lineUnit ? u"%1, %2 characters"_s.arg(clock, content.characters)
                                                                : clock;
}

QString whatNow(Fate fate)
{
    switch (fate) {
    case Fate::Saved:
        return u"It has been saved since, so it can't be taken up."_s;
    case Fate::Deleted:
        return u"It has been deleted since, so it can't be taken up."_s;
    case Fate::Unchanged:
        break;
    }
    return u"Open it to go on."_s;
}

} // namespace

Fate findFate(const PanelContent& content, const std::optional<StoredJob>& stored)
{
    if (!stored)
        return Fate::Deleted;
    const auto withoutMark = [](QStringList texts) {
        texts.removeLast();
        return texts;
    };
    return withoutMark(stored->texts) == withoutMark(content.stored) ? Fate::Unchanged : Fate::Saved;
}

QString leftJobText(const PanelContent& content, Fate fate)
{
    return u"%1 of %2 %3: %4. %5"_s.arg(content.captions[jobValue::Reference], content.captions[jobValue::Client],
                                        whatHappened(content), figures(content), whatNow(fate));
}

} // namespace workspace
