#include "Completion.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace quorvane::cli::Completion {

namespace {

QString optionWords(const Command &command, QStringList *needValue)
{
    QStringList words{u"--help"_s};
    for (const QCommandLineOption &option : command.options()) {
        for (const QString &name : option.names()) {
            const QString word = (name.size() == 1 ? u"-"_s : u"--"_s) + name;
            words.append(word);
            if (!option.valueName().isEmpty())
                needValue->append(word);
        }
    }
    return words.join(u' ');
}

} // namespace

QString bash(const QList<const Command *> &commands)
{
    QStringList names;
    QStringList cases;
    QStringList needValue;
    for (const Command *command : commands) {
        names.append(command->name);
        const QString options = optionWords(*command, &needValue);
        const QString words = (QStringList{options} + command->words).join(u' ');
        cases.append(u"        %1) words=\"%2\" ;;"_s.arg(command->name, words));
    }
    needValue.removeDuplicates();
    return uR"(# bash completion for quorvanectl                         -*- shell-script -*-
_quorvanectl()
{
    local cur prev words
    cur=${COMP_WORDS[COMP_CWORD]}
    prev=${COMP_WORDS[COMP_CWORD-1]}
    if [[ $COMP_CWORD -eq 1 ]]; then
        COMPREPLY=($(compgen -W "%1 --help --version" -- "$cur"))
        return
    fi
    case $prev in
        %2) return ;;
    esac
    case ${COMP_WORDS[1]} in
%3
        *) words="" ;;
    esac
    COMPREPLY=($(compgen -W "$words" -- "$cur"))
} &&
    complete -F _quorvanectl quorvanectl
)"_s.arg(names.join(u' '), needValue.join(u'|'), cases.join(u'\n'));
}

} // namespace quorvane::cli::Completion
