#include "lvx/files/mru_list.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "files/profile_folder.h"

namespace {

using LVXUtilities::Settings;
using Lines = std::vector<std::string>;

// Stands for a menu of the framework: items in order, and a record of the calls. Each call is told with what
// the settings file says at that moment, so that the record has the order of both.
class RecordingMenu : public LVXMRUMenu {
public:
    RecordingMenu(Lines& items, Lines& record, const lvx_test::ProfileFolder& profile)
        : m_items(items), m_record(record), m_profile(profile) {}

    void InsertMenu(int position, unsigned int flags, unsigned int id, const char* label) override {
        const std::string text = label != nullptr ? label : "null";
        Record("insert " + std::to_string(position) + " " + Hex(flags) + " " +
               (id == ~0U ? "none" : std::to_string(id)) + " " + text);
        m_items.insert(m_items.begin() + position, label != nullptr ? text : "----");
    }

    void DeleteMenu(int position, unsigned int flags) override {
        Record("delete " + std::to_string(position) + " " + Hex(flags));
        if (position < static_cast<int>(m_items.size())) {
            m_items.erase(m_items.begin() + position);
        }
    }

private:
    static std::string Hex(unsigned int flags) {
        return flags == 0x400 ? "0x400" : flags == 0xC00 ? "0xC00" : std::to_string(flags);
    }

    // "delete 2 0x400 | 1=b 2=a"
    void Record(const std::string& call) {
        std::string stored;
        Settings settings(m_profile.Name(), false);
        for (int number = 0; number <= 7; ++number) {
            const std::string key = std::to_string(number);
            const std::string value = settings.GetStr("MRU", key, std::string("-"));
            if (value != "-") {
                stored += " " + key + "=" + value;
            }
        }
        m_record.push_back(call + " |" + stored);
    }

    Lines& m_items;
    Lines& m_record;
    const lvx_test::ProfileFolder& m_profile;
};

class RecentFiles : public ::testing::Test {
protected:
    std::unique_ptr<LVXMRUMenu> NewMenu() {
        return std::make_unique<RecordingMenu>(m_items, m_record, m_profile);
    }

    std::string Stored(int number) {
        return m_settings.GetStr("MRU", std::to_string(number), std::string("-"));
    }

    Lines Files() { return FilesOf(m_list); }

    /// What the next run of the program has behind loading. It has a menu of its own.
    Lines LoadedByANewList() {
        Lines items;
        LVXMRUList list(nullptr, 5000, 0, m_settings);
        list.setMenu(std::make_unique<RecordingMenu>(items, m_record, m_profile));
        list.readFromINI();
        return FilesOf(list);
    }

    static Lines FilesOf(LVXMRUList& list) {
        Lines files;
        for (int number = 1; !list.getFile(number).empty(); ++number) {
            files.push_back(list.getFile(number));
        }
        return files;
    }

    void Add(const Lines& files) {
        for (const std::string& file : files) {
            m_list.addFile(file);
        }
    }

    lvx_test::ProfileFolder m_profile;
    Settings m_settings{m_profile.Name(), false};
    Lines m_items{"Open", "Save", "Exit"};
    Lines m_record;
    LVXMRUList m_list{nullptr, 5000, 2, m_settings};
};

// The same with a menu from the beginning.
class RecentFilesMenu : public RecentFiles {
protected:
    RecentFilesMenu() { m_list.setMenu(NewMenu()); }
};

}  // namespace

TEST_F(RecentFiles, a_new_list_is_empty_and_touches_nothing) {
    EXPECT_EQ(Lines{}, Files());
    EXPECT_EQ("", m_list.getFile(0));
    EXPECT_EQ("", m_profile.Content());
    EXPECT_FALSE(m_list.Create());
}

TEST_F(RecentFiles, without_a_menu_the_list_changes_and_the_file_does_not) {
    Add({"a", "b"});
    m_list.removeFile("a");
    EXPECT_EQ(Lines{"b"}, Files());
    EXPECT_FALSE(m_list.Update());
    EXPECT_EQ("", m_profile.Content());
}

TEST_F(RecentFiles, the_newest_has_the_number_1) {
    Add({"a", "b", "c"});
    EXPECT_EQ("c", m_list.getFile(1));
    EXPECT_EQ("a", m_list.getFile(3));
    EXPECT_EQ("", m_list.getFile(0));
    EXPECT_EQ("", m_list.getFile(4));
    EXPECT_EQ("", m_list.getFile(-1));
    EXPECT_EQ("", m_list.getFile(2147483647));
    EXPECT_EQ("", m_list.getFile(-2147483647 - 1));
}

TEST_F(RecentFiles, a_seventh_file_drops_the_oldest) {
    Add({"a", "b", "c", "d", "e", "f", "g"});
    EXPECT_EQ((Lines{"g", "f", "e", "d", "c", "b"}), Files());
    Add({"h", "i"});
    EXPECT_EQ((Lines{"i", "h", "g", "f", "e", "d"}), Files());
}

TEST_F(RecentFiles, a_listed_file_moves_to_number_1) {
    Add({"a", "b", "c", "a"});
    EXPECT_EQ((Lines{"a", "c", "b"}), Files());
    Add({"d", "e", "f", "c"});
    EXPECT_EQ((Lines{"c", "f", "e", "d", "a", "b"}), Files());
}

TEST_F(RecentFiles, names_that_differ_in_case_are_different_files) {
    Add({"c:\\a.bmp", "C:\\a.bmp"});
    EXPECT_EQ((Lines{"C:\\a.bmp", "c:\\a.bmp"}), Files());
}

TEST_F(RecentFiles, a_file_is_taken_out_wherever_it_is) {
    Add({"a", "b", "c"});
    m_list.deleteFile("b");
    EXPECT_EQ((Lines{"c", "a"}), Files());
    m_list.deleteFile("x");
    m_list.deleteFile("");
    EXPECT_EQ((Lines{"c", "a"}), Files());
    m_list.deleteFile("a");
    m_list.deleteFile("c");
    EXPECT_EQ(Lines{}, Files());
    m_list.deleteFile("c");
    EXPECT_EQ(Lines{}, Files());
}

TEST_F(RecentFiles, a_full_list_gets_room_again) {
    Add({"a", "b", "c", "d", "e", "f"});
    m_list.deleteFile("f");
    Add({"g"});
    EXPECT_EQ((Lines{"g", "e", "d", "c", "b", "a"}), Files());
}

TEST_F(RecentFiles, the_names_in_the_file_are_loaded_with_number_1_as_the_newest) {
    m_profile.SetContent("[MRU]\r\n1=new\r\n2=\r\n3=old\r\n6=oldest\r\n7=none\r\n");
    m_list.readFromINI();
    EXPECT_EQ((Lines{"new", "old", "oldest"}), Files());
}

TEST_F(RecentFiles, a_name_with_the_number_0_is_the_newest) {
    m_profile.SetContent("[MRU]\r\n0=zero\r\n1=one\r\n");
    m_list.readFromINI();
    EXPECT_EQ((Lines{"zero", "one"}), Files());
}

TEST_F(RecentFiles, of_seven_names_in_the_file_the_last_read_is_dropped) {
    m_profile.SetContent("[MRU]\r\n0=0\r\n1=1\r\n2=2\r\n3=3\r\n4=4\r\n5=5\r\n6=6\r\n");
    m_list.readFromINI();
    EXPECT_EQ((Lines{"1", "2", "3", "4", "5", "6"}), Files());
}

TEST_F(RecentFiles, names_in_the_file_come_behind_those_of_the_list_up_to_six) {
    Add({"a", "b", "c", "d"});
    m_profile.SetContent("[MRU]\r\n1=x\r\n2=y\r\n3=z\r\n");
    m_list.readFromINI();
    EXPECT_EQ((Lines{"y", "z", "d", "c", "b", "a"}), Files());
    m_list.readFromINI();
    EXPECT_EQ((Lines{"y", "z", "d", "c", "b", "a"}), Files());
}

TEST_F(RecentFilesMenu, one_file_is_an_item_and_a_separator) {
    m_list.addFile("c:\\pictures\\logo.bmp");
    EXPECT_EQ((Lines{"Open", "Save", "&1 c:\\pictures\\logo.bmp", "----", "Exit"}), m_items);
    EXPECT_EQ((Lines{"insert 2 0xC00 none null |", "insert 2 0x400 5001 &1 c:\\pictures\\logo.bmp |"}),
              m_record);
    EXPECT_EQ("c:\\pictures\\logo.bmp", Stored(1));
    EXPECT_EQ("[MRU]\r\n1=c:\\pictures\\logo.bmp\r\n", m_profile.Content());
}

TEST_F(RecentFilesMenu, menu_and_file_change_in_this_order) {
    Add({"a", "b"});
    m_record.clear();
    m_list.addFile("c");
    EXPECT_EQ((Lines{
                  "delete 2 0x400 | 1=b 2=a",
                  "delete 2 0x400 | 1=b 2=",
                  "delete 2 0x400 | 1= 2=",
                  "insert 2 0xC00 none null | 1= 2=",
                  "insert 2 0x400 5003 &3 a | 1= 2=",
                  "insert 2 0x400 5002 &2 b | 1= 2= 3=a",
                  "insert 2 0x400 5001 &1 c | 1= 2=b 3=a",
              }),
              m_record);
    EXPECT_EQ((Lines{"Open", "Save", "&1 c", "&2 b", "&3 a", "----", "Exit"}), m_items);
    EXPECT_EQ("c", Stored(1));
    EXPECT_EQ("b", Stored(2));
    EXPECT_EQ("a", Stored(3));
}

TEST_F(RecentFilesMenu, six_is_the_most_and_the_numbers_stay) {
    Add({"a", "b", "c", "d", "e", "f", "g"});
    EXPECT_EQ((Lines{"Open", "Save", "&1 g", "&2 f", "&3 e", "&4 d", "&5 c", "&6 b", "----", "Exit"}),
              m_items);
    EXPECT_EQ("b", Stored(6));
    EXPECT_EQ("-", Stored(7));
}

TEST_F(RecentFilesMenu, the_last_file_takes_the_separator_along) {
    m_list.addFile("a");
    m_record.clear();
    m_list.removeFile("a");
    EXPECT_EQ((Lines{"Open", "Save", "Exit"}), m_items);
    EXPECT_EQ((Lines{"delete 2 0x400 | 1=a", "delete 2 0x400 | 1="}), m_record);
    EXPECT_EQ("", Stored(1));
    m_record.clear();
    m_list.removeFile("a");
    EXPECT_EQ(Lines{}, m_record);
}

TEST_F(RecentFilesMenu, a_file_that_goes_leaves_no_key_with_its_name) {
    Add({"a", "b", "c"});
    m_list.removeFile("b");
    EXPECT_EQ((Lines{"Open", "Save", "&1 c", "&2 a", "----", "Exit"}), m_items);
    EXPECT_EQ("c", Stored(1));
    EXPECT_EQ("a", Stored(2));
    EXPECT_EQ("", Stored(3));
}

TEST_F(RecentFilesMenu, taking_out_a_file_that_is_not_listed_rebuilds_all_the_same) {
    m_list.addFile("a");
    m_record.clear();
    m_list.removeFile("x");
    EXPECT_EQ((Lines{"delete 2 0x400 | 1=a", "delete 2 0x400 | 1=", "insert 2 0xC00 none null | 1=",
                     "insert 2 0x400 5001 &1 a | 1="}),
              m_record);
    EXPECT_EQ("a", Stored(1));
}

TEST_F(RecentFilesMenu, an_ampersand_is_not_doubled) {
    m_list.addFile("r&d.bmp");
    EXPECT_EQ("&1 r&d.bmp", m_items[2]);
}

TEST_F(RecentFilesMenu, update_takes_the_items_out_and_puts_them_in) {
    Add({"a", "b"});
    m_record.clear();
    EXPECT_TRUE(m_list.Update());
    EXPECT_EQ(6U, m_record.size());
    EXPECT_EQ((Lines{"Open", "Save", "&1 b", "&2 a", "----", "Exit"}), m_items);
}

TEST_F(RecentFilesMenu, update_of_an_empty_list_does_nothing) {
    EXPECT_TRUE(m_list.Update());
    EXPECT_EQ(Lines{}, m_record);
}

TEST_F(RecentFilesMenu, loading_fills_the_menu_and_closes_gaps_in_the_file) {
    m_profile.SetContent("[MRU]\r\n2=b\r\n5=e\r\n");
    m_list.readFromINI();
    EXPECT_EQ((Lines{"insert 2 0xC00 none null | 2=b 5=e", "insert 2 0x400 5002 &2 e | 2=b 5=e",
                     "insert 2 0x400 5001 &1 b | 2=e 5=e"}),
              m_record);
    EXPECT_EQ("b", Stored(1));
    EXPECT_EQ("e", Stored(2));
    EXPECT_EQ("e", Stored(5));
}

// The keys that the loaded list does not use are nobody's, so they are there again next time.
TEST_F(RecentFilesMenu, a_key_above_a_gap_stays_and_is_read_again) {
    m_profile.SetContent("[MRU]\r\n2=b\r\n5=e\r\n");
    EXPECT_EQ((Lines{"b", "e"}), LoadedByANewList());
    EXPECT_EQ("[MRU]\r\n2=e\r\n5=e\r\n1=b\r\n", m_profile.Content());
    EXPECT_EQ((Lines{"b", "e", "e"}), LoadedByANewList());
    EXPECT_EQ("[MRU]\r\n2=e\r\n5=e\r\n1=b\r\n3=e\r\n", m_profile.Content());
    EXPECT_EQ((Lines{"b", "e", "e", "e"}), LoadedByANewList());
    EXPECT_EQ((Lines{"b", "e", "e", "e", "e"}), LoadedByANewList());
    // 5 is in use now, so nothing is left over.
    EXPECT_EQ((Lines{"b", "e", "e", "e", "e"}), LoadedByANewList());
}

TEST_F(RecentFilesMenu, the_key_0_stays_and_is_read_again) {
    m_profile.SetContent("[MRU]\r\n0=z\r\n1=a\r\n");
    EXPECT_EQ((Lines{"z", "a"}), LoadedByANewList());
    EXPECT_EQ("[MRU]\r\n0=z\r\n1=z\r\n2=a\r\n", m_profile.Content());
    EXPECT_EQ((Lines{"z", "z", "a"}), LoadedByANewList());
    EXPECT_EQ("z", Stored(0));
}

TEST_F(RecentFilesMenu, loading_into_a_filled_list_empties_the_keys_of_its_files_first) {
    Add({"a", "b"});
    m_settings.WriteStr("MRU", "4", "x");
    m_list.readFromINI();
    EXPECT_EQ((Lines{"x", "b", "a"}), Files());
    EXPECT_EQ((Lines{"Open", "Save", "&1 x", "&2 b", "&3 a", "----", "Exit"}), m_items);
}

TEST_F(RecentFilesMenu, an_entry_added_by_its_own_name_in_the_list_survives_the_move) {
    Add({"a", "b", "c", "d", "e", "f"});
    m_list.addFile(m_list.getFile(6));
    EXPECT_EQ((Lines{"a", "f", "e", "d", "c", "b"}), Files());
}

TEST_F(RecentFilesMenu, entries_are_taken_out_and_put_in_while_the_list_keeps_its_files) {
    Add({"a", "b"});
    m_list.removeEntries();
    EXPECT_EQ((Lines{"Open", "Save", "Exit"}), m_items);
    EXPECT_EQ((Lines{"b", "a"}), Files());
    m_list.addEntries();
    EXPECT_EQ((Lines{"Open", "Save", "&1 b", "&2 a", "----", "Exit"}), m_items);
}

// What the steps require matters: they count, and do not look.
TEST_F(RecentFilesMenu, removing_entries_twice_takes_as_many_items_of_the_host) {
    m_items = {"Open", "Save", "Print", "Send", "Close", "Exit"};
    Add({"a", "b"});
    m_list.removeEntries();
    m_list.removeEntries();
    EXPECT_EQ((Lines{"Open", "Save", "Exit"}), m_items);
    m_list.removeEntries();
    EXPECT_EQ((Lines{"Open", "Save"}), m_items) << "and what is not there is not taken";
}

TEST_F(RecentFiles, a_menu_that_comes_later_gets_the_files) {
    Add({"a", "b"});
    m_list.setMenu(NewMenu());
    EXPECT_EQ((Lines{"Open", "Save", "&1 b", "&2 a", "----", "Exit"}), m_items);
    EXPECT_EQ("b", Stored(1));
    EXPECT_TRUE(m_list.Create());
}

TEST_F(RecentFiles, another_menu_takes_the_items_over) {
    m_list.setMenu(NewMenu());
    Add({"a"});
    Lines other_items{"New", "Open"};
    m_list.setMenu(std::make_unique<RecordingMenu>(other_items, m_record, m_profile));
    EXPECT_EQ((Lines{"Open", "Save", "Exit"}), m_items);
    EXPECT_EQ((Lines{"New", "Open", "&1 a", "----"}), other_items);
    EXPECT_EQ("a", Stored(1));
}

TEST_F(RecentFiles, a_menu_is_let_go_of_as_it_is) {
    m_list.setMenu(NewMenu());
    Add({"a"});
    m_record.clear();
    m_list.setMenu(nullptr);
    EXPECT_EQ(Lines{}, m_record);
    EXPECT_EQ("a", Stored(1));
    EXPECT_FALSE(m_list.Create());
    m_list.addFile("b");
    EXPECT_EQ(Lines{}, m_record);
    EXPECT_EQ("a", Stored(1));
}

TEST_F(RecentFiles, a_second_list_reads_what_the_first_stored) {
    m_list.setMenu(NewMenu());
    Add({"a", "b", "c"});
    LVXMRUList other(nullptr, 1, 0, m_settings);
    other.readFromINI();
    EXPECT_EQ("c", other.getFile(1));
    EXPECT_EQ("a", other.getFile(3));
}
