#include "ado/rows/platform/MapPages.h"
#include "ado/rows/RowStore.h"

#include <QtCore/QByteArray>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#ifdef Q_OS_LINUX
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>
#endif

#if defined(Q_OS_LINUX) && defined(MADV_POPULATE_WRITE)

using namespace ADODB;

namespace {

std::size_t pageSize()
{
    return static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

bool hasItsPage(const char *at)
{
    unsigned char state = 0;
    char *const start = const_cast<char *>(at - reinterpret_cast<std::uintptr_t>(at) % pageSize());
    return mincore(start, 1, &state) == 0 && (state & 1) != 0;
}

// New memory, none of whose pages has been touched.
class MapPages : public testing::Test
{
protected:
    static constexpr std::size_t pages = 8;

    void SetUp() override
    {
        mallopt(M_MMAP_THRESHOLD, 128 << 10); // so that no freed block is used again
        void *const address =
            mmap(nullptr, pages * pageSize(), PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        ASSERT_NE(address, MAP_FAILED);
        m_memory = static_cast<char *>(address);
        if (madvise(m_memory, pageSize(), MADV_POPULATE_WRITE) != 0)
            GTEST_SKIP() << "Linux before 5.14";
        madvise(m_memory, pageSize(), MADV_DONTNEED);
    }

    void TearDown() override
    {
        if (m_memory)
            munmap(m_memory, pages * pageSize());
    }

    const char *page(std::size_t number) const { return m_memory + number * pageSize(); }

    // A letter for each page: M if it is mapped.
    std::string mapped() const
    {
        std::string all;
        for (std::size_t i = 0; i < pages; ++i)
            all += hasItsPage(page(i)) ? 'M' : '-';
        return all;
    }

    char *m_memory = nullptr;
};

} // namespace

TEST_F(MapPages, MapsFromThePageOfTheStartToTheLastWholeOne)
{
    mapPages(page(2) + 100, page(5) + 100);
    EXPECT_EQ(mapped(), "--MMM---");
}

TEST_F(MapPages, KeepsWhatIsInThePages)
{
    m_memory[2 * pageSize() + 5] = 'x';
    mapPages(page(1), page(4));
    EXPECT_EQ(*(page(2) + 5), 'x');
    EXPECT_EQ(mapped(), "-MMM----");
}

TEST_F(MapPages, DoesNothingWithinOnePage)
{
    mapPages(page(3) + 1, page(3) + 2);
    mapPages(page(4), page(4));
    EXPECT_EQ(mapped(), "--------");
}

TEST_F(MapPages, OfALargeResultMostPagesAreThereBeforeTheRows)
{
    RowStore rows(1);
    const QByteArray text(1000, 'T');
    constexpr int count = 16'000;
    int ahead = 0;
    for (int i = 0; i < count; ++i) {
        rows.addText(text);
        rows.endRow();
        ahead += hasItsPage(rows.cell(i, 0).bytes.data() + 3 * pageSize()) ? 1 : 0;
    }
    EXPECT_GT(ahead, count / 2);
}

TEST_F(MapPages, OfASmallResultNoneIs)
{
    RowStore rows(1);
    const QByteArray text(400'000, 'T');
    rows.addText(text);
    rows.endRow();
    rows.addText("T");
    rows.endRow();
    EXPECT_FALSE(hasItsPage(rows.cell(1, 0).bytes.data() + 3 * pageSize()));
}

#endif
