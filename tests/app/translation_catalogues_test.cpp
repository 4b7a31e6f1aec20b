// The seven compiled catalogues, as the application embeds them, against the list of messages that the
// pages, components and bucket query translate (tests/app/data/catalogue_messages.tsv).
#include <gtest/gtest.h>

#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QString>
#include <QStringDecoder>
#include <QTranslator>
#include <QtEndian>
#include <map>
#include <ostream>
#include <vector>

// Failure messages show texts, not the bytes of the string object.
void PrintTo(const QString& text, std::ostream* os) { *os << '"' << text.toStdString() << '"'; }

namespace {

const char* const kLocales[] = {"de", "es", "fr", "it", "pl", "pt_BR", "ru"};
const QString kControllerContext = QStringLiteral("AppController");
constexpr int kListedMessages = 384;
// Names, symbols and poker words that keep their English form: a catalogue with fewer is suspect of
// translating what must stay, one with more of leaving texts untranslated.
constexpr int kFewestUnchanged = 58;
constexpr int kMostUnchanged = 103;

const std::map<QString, int> kMessagesPerContext = {
    {"ActionBar", 4},    {"Chip", 1},          {"HandBuckets", 21}, {"HomePage", 58},    {"PlayingCard", 1},
    {"ProgressRing", 1}, {"ProjectPage", 136}, {"RangeEditor", 4},  {"ResultsPage", 70}, {"SettingsPage", 19},
    {"Sidebar", 14},     {"SolvePage", 39},    {"TopBar", 11},      {"TreeNode", 5},
};

struct Message {
    QString context;
    QString source;
    friend bool operator==(const Message& a, const Message& b) {
        return a.context == b.context && a.source == b.source;
    }
};

size_t qHash(const Message& m, size_t seed = 0) { return ::qHash(m.context, seed) ^ ::qHash(m.source, seed); }

void PrintTo(const Message& m, std::ostream* os) {
    *os << m.context.toStdString() << " \"" << m.source.toStdString() << '"';
}

// One message of a compiled catalogue, with every translation it carries (more than one would be plural).
struct CompiledMessage {
    Message key;
    QStringList translations;
};

QString cataloguePath(const char* locale) {
    return QStringLiteral(":/Kelvane/i18n/kelvane_%1.qm").arg(QLatin1String(locale));
}

std::vector<Message> listedMessages() {
    QFile file(QStringLiteral(KELVANE_SOURCE_DIR "/tests/app/data/catalogue_messages.tsv"));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) return {};
    std::vector<Message> messages;
    for (const QString& line :
         QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        if (line.startsWith(QLatin1Char('#'))) continue;
        const qsizetype tab = line.indexOf(QLatin1Char('\t'));
        messages.push_back({line.left(tab), line.mid(tab + 1)});
    }
    return messages;
}

QStringList placeholders(const QString& text) {
    static const QRegularExpression marker(QStringLiteral("%\\d"));
    QStringList found;
    for (auto it = marker.globalMatch(text); it.hasNext();) found.append(it.next().captured());
    found.sort();
    return found;
}

// Reads the message table of Qt's compiled format: a 16-byte magic, then blocks of a tag byte and a
// big-endian length; in the messages block each message is a list of tagged fields closed by an end tag.
// lrelease writes context and source text of every message unless told to compress.
class CompiledCatalogue {
  public:
    explicit CompiledCatalogue(const QByteArray& bytes) {
        qsizetype at = kMagicSize;
        while (at + kBlockHeaderSize <= bytes.size()) {
            const auto tag = static_cast<quint8>(bytes[at]);
            const qsizetype length = qFromBigEndian<quint32>(bytes.constData() + at + 1);
            if (tag == kMessagesBlock) readMessages(bytes.mid(at + kBlockHeaderSize, length));
            at += kBlockHeaderSize + length;
        }
    }

    const std::vector<CompiledMessage>& messages() const { return messages_; }
    bool wellFormed() const { return wellFormed_; }

  private:
    static constexpr qsizetype kMagicSize = 16;
    static constexpr qsizetype kBlockHeaderSize = 5;
    static constexpr quint8 kMessagesBlock = 0x69;
    static constexpr quint8 kEnd = 1;
    static constexpr quint8 kTranslation = 3;
    static constexpr quint8 kSourceText = 6;
    static constexpr quint8 kContext = 7;
    static constexpr quint32 kNullText = 0xffffffff;

    void readMessages(const QByteArray& block) {
        CompiledMessage current;
        qsizetype at = 0;
        while (at < block.size() && wellFormed_) {
            const auto tag = static_cast<quint8>(block[at++]);
            if (tag == kEnd) {
                messages_.push_back(current);
                current = {};
                continue;
            }
            if (at + 4 > block.size()) break;
            const quint32 length = qFromBigEndian<quint32>(block.constData() + at);
            at += 4;
            if (length == kNullText) continue;
            wellFormed_ = at + length <= block.size();
            storeField(current, tag, block.mid(at, length));
            at += length;
        }
        wellFormed_ = wellFormed_ && at == block.size();
    }

    static void storeField(CompiledMessage& message, quint8 tag, const QByteArray& field) {
        if (tag == kTranslation) {
            message.translations.append(QStringDecoder(QStringConverter::Utf16BE).decode(field));
        } else if (tag == kSourceText) {
            message.key.source = QString::fromUtf8(field);
        } else if (tag == kContext) {
            message.key.context = QString::fromUtf8(field);
        }
    }

    std::vector<CompiledMessage> messages_;
    bool wellFormed_ = true;
};

CompiledCatalogue compiledCatalogue(const char* locale) {
    QFile file(cataloguePath(locale));
    return CompiledCatalogue(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
}

QSet<QString> controllerSources(const CompiledCatalogue& catalogue) {
    QSet<QString> sources;
    for (const CompiledMessage& message : catalogue.messages())
        if (message.key.context == kControllerContext) sources.insert(message.key.source);
    return sources;
}

TEST(CatalogueMessageList, MatchesTheContextsAndTheirSizes) {
    const std::vector<Message> listed = listedMessages();
    ASSERT_EQ(listed.size(), static_cast<size_t>(kListedMessages));
    std::map<QString, int> perContext;
    QSet<Message> distinct;
    for (const Message& message : listed) {
        ++perContext[message.context];
        distinct.insert(message);
        EXPECT_FALSE(message.source.isEmpty()) << message.context.toStdString();
    }
    EXPECT_EQ(perContext, kMessagesPerContext);
    EXPECT_EQ(distinct.size(), kListedMessages);
}

class TranslationCatalogue : public testing::TestWithParam<const char*> {
  protected:
    void SetUp() override {
        listed_ = listedMessages();
        ASSERT_EQ(listed_.size(), static_cast<size_t>(kListedMessages));
        ASSERT_TRUE(translator_.load(cataloguePath(GetParam()))) << cataloguePath(GetParam()).toStdString();
    }

    QString translated(const Message& message) const {
        return translator_.translate(message.context.toUtf8().constData(),
                                     message.source.toUtf8().constData());
    }

    std::vector<Message> listed_;
    QTranslator translator_;
};

TEST_P(TranslationCatalogue, TranslatesEveryListedMessageKeepingItsPlaceholders) {
    for (const Message& message : listed_) {
        const QString text = translated(message);
        const std::string where = message.context.toStdString() + " \"" + message.source.toStdString() + "\"";
        EXPECT_FALSE(text.trimmed().isEmpty()) << where;
        EXPECT_EQ(placeholders(text), placeholders(message.source)) << where << " -> " << text.toStdString();
    }
}

TEST_P(TranslationCatalogue, LeavesOnlyNamesSymbolsAndPokerWordsUnchanged) {
    int unchanged = 0;
    for (const Message& message : listed_) unchanged += translated(message) == message.source ? 1 : 0;
    EXPECT_GE(unchanged, kFewestUnchanged);
    EXPECT_LE(unchanged, kMostUnchanged);
}

TEST_P(TranslationCatalogue, HoldsTheListedMessagesAndTheControllersOwnOnly) {
    const CompiledCatalogue catalogue = compiledCatalogue(GetParam());
    ASSERT_TRUE(catalogue.wellFormed());
    const QSet<QString> controller = controllerSources(catalogue);
    ASSERT_FALSE(controller.isEmpty());
    EXPECT_EQ(catalogue.messages().size(), static_cast<size_t>(kListedMessages + controller.size()));

    std::map<QString, int> perContext;
    QSet<Message> compiled;
    for (const CompiledMessage& message : catalogue.messages()) {
        const std::string where =
            message.key.context.toStdString() + " \"" + message.key.source.toStdString() + "\"";
        ASSERT_EQ(message.translations.size(), 1) << where;
        EXPECT_FALSE(message.translations.first().trimmed().isEmpty()) << where;
        EXPECT_EQ(placeholders(message.translations.first()), placeholders(message.key.source)) << where;
        if (message.key.context == kControllerContext) continue;
        ++perContext[message.key.context];
        compiled.insert(message.key);
    }
    EXPECT_EQ(perContext, kMessagesPerContext);
    EXPECT_EQ(compiled, QSet<Message>(listed_.begin(), listed_.end()));
}

TEST_P(TranslationCatalogue, SharesTheControllersMessagesWithEveryOtherLocale) {
    EXPECT_EQ(controllerSources(compiledCatalogue(GetParam())),
              controllerSources(compiledCatalogue(kLocales[0])));
}

INSTANTIATE_TEST_SUITE_P(Locales, TranslationCatalogue, testing::ValuesIn(kLocales),
                         [](const testing::TestParamInfo<const char*>& info) {
                             return std::string(info.param);
                         });

}  // namespace
