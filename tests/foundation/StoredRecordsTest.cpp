#include "platform/foundation/StoredRecords.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

QByteArray large(char content) { return QByteArray(300'000, content); }

class StoredRecordsTest : public testing::Test {
protected:
    QStringList largeFiles() const { return QDir(folder.filePath("List.data")).entryList(QDir::Files, QDir::Name); }
    /// All bytes of all records.
    std::vector<std::map<QString, QByteArray>> contents() const
    {
        std::vector<std::map<QString, QByteArray>> all;
        const std::optional<StoredRecords> records = readStoredRecords(file);
        for (const StoredRecord& record : records.value_or(StoredRecords()))
            for (auto& bytes = all.emplace_back(); const auto& [key, data] : record)
                bytes[key] = data.bytes();
        return all;
    }

    QTemporaryDir folder;
    QString file = folder.filePath("List.cbor");
};

TEST_F(StoredRecordsTest, ComeBackInOrderWithLargeValuesOnDemand)
{
    EXPECT_FALSE(readStoredRecords(file));
    ASSERT_TRUE(writeStoredRecords({{{"a", QByteArray("1")}, {"b", large('x')}}, {}, {{"c", large('x')}}}, file));
    const std::optional<StoredRecords> read = readStoredRecords(file);
    ASSERT_TRUE(read);
    ASSERT_EQ(read->size(), 3u);
    EXPECT_EQ(read->at(0).at("a").bytes(), "1");
    EXPECT_TRUE(read->at(0).at("b").isInFile());
    EXPECT_EQ(read->at(0).at("b").bytes(), large('x'));
    EXPECT_TRUE(read->at(1).empty());
    EXPECT_EQ(largeFiles().size(), 1) << "equal values are stored once";
    EXPECT_LT(QFile(file).size(), 1000);

    ASSERT_TRUE(writeStoredRecords({read->at(2), {{"d", large('y')}}}, file));
    EXPECT_EQ(contents(), (std::vector<std::map<QString, QByteArray>>{{{"c", large('x')}}, {{"d", large('y')}}}));
    ASSERT_TRUE(writeStoredRecords({}, file));
    EXPECT_EQ(readStoredRecords(file)->size(), 0u);
    EXPECT_TRUE(largeFiles().isEmpty()) << "nobody needs them any more";
}

TEST_F(StoredRecordsTest, IgnoreFilesThatHoldNoListAndNamesThatLeadElsewhere)
{
    const auto write = [this](const QByteArray& bytes) {
        QFile out(file);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(bytes);
    };
    for (const char* bytes : {"", "garbage", "\xa1\x61\x61\x01", "\x83\xa1"}) {
        write(bytes);
        EXPECT_FALSE(readStoredRecords(file)) << bytes;
    }
    // [{"k": "../List.cbor", "n": 5}]
    write(QByteArray("\x81\xa2\x61\x6b\x6c../List.cbor\x61\x6e\x05"));
    ASSERT_TRUE(readStoredRecords(file));
    EXPECT_TRUE(readStoredRecords(file)->at(0).empty());
}

TEST_F(StoredRecordsTest, StayWholeWhenTheWriterIsKilled)
{
    const StoredRecords lists[] = {{{{"a", large('p')}, {"b", QByteArray("1")}}}, {{{"a", large('q')}}, {}}};
    ASSERT_TRUE(writeStoredRecords(lists[0], file));
    const auto first = contents();
    ASSERT_TRUE(writeStoredRecords(lists[1], file));
    const auto second = contents();
    for (int delay = 0; delay < 40; ++delay) {
        const pid_t writer = fork();
        ASSERT_GE(writer, 0);
        if (writer == 0)
            for (int i = 0;; ++i)
                writeStoredRecords(lists[i % 2], file);
        usleep(useconds_t(500 + delay * 137));
        kill(writer, SIGKILL);
        waitpid(writer, nullptr, 0);
        const auto found = contents();
        EXPECT_TRUE(found == first || found == second) << delay;
    }
}

TEST_F(StoredRecordsTest, StayAsTheyWereWhenTheDiskIsFull)
{
    ASSERT_TRUE(writeStoredRecords({{{"a", QByteArray("old")}}}, file));
    const pid_t writer = fork();
    ASSERT_GE(writer, 0);
    if (writer == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{100'000, 100'000}; // bytes a file
        setrlimit(RLIMIT_FSIZE, &limit);
        const bool largeFails = !writeStoredRecords({{{"a", large('z')}}}, file);
        const bool listFails = !writeStoredRecords(StoredRecords(2000, {{"a", QByteArray(60, 'z')}}), file);
        _exit(largeFails && listFails ? 0 : 1);
    }
    int status = 0;
    waitpid(writer, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "writing too much should have failed";
    EXPECT_EQ(contents(), (std::vector<std::map<QString, QByteArray>>{{{"a", "old"}}}));
}

} // namespace
