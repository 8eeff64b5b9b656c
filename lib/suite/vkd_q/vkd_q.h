#pragma once
// vkd_q, the suite's core: the ZOB record store, numbered settings, the search path
// and the message catalogues of the batch programs. No widget is needed here.

#include <QString>
#include <string>

using zob_status_t = int;

// Results of the store calls. 0 and 1 deliver a record; 2 and above deliver none.
enum ZobStatus : zob_status_t
{
    ZOB_OK = 0,
    ZOB_TRUNCATED = 1, // delivered, but the buffer was shorter than the record
    ZOB_END = 2,       // no record at this position: the sequence is at its end
    ZOB_NO_KEY = 3,    // nothing was ever stored under this key pair
    ZOB_BAD_ARGUMENT = 4,
    ZOB_NO_DATABASE = 5, // the index names no open database
    ZOB_BUSY = 6,        // another program held the write lock past the busy timeout
    ZOB_FAILED = 7,      // any other error of the database
    ZOB_READ_ONLY = 8    // the project was opened for reading only; nothing is written
};

enum ZobOpenMode
{
    ZOB_OPEN_EXISTING,   // a project that exists; read-only if the file or its folder is
    ZOB_OPEN_OR_CREATE,  // as above, or a new project where there is no file or an empty one
    ZOB_OPEN_READ_ONLY,  // never writes, not even a journal
    ZOB_OPEN_MEMORY_COPY // a copy in memory: writes go to the copy, the file stays as it is
};

// The format of the project files this program writes and reads, kept in the file's
// user_version. A file of any other version is refused.
constexpr int kZobFormatVersion = 1;
// How long a write waits for another program that holds the project.
constexpr int kZobBusyTimeoutMs = 30000;

// Opens (or creates) a project file and gives its database index (1, 2, ...), or -1 and a
// message in *error that names the file and the reason. A file that is refused is not modified.
int vkd_zob_open(const QString& path, ZobOpenMode mode, QString* error);
void vkd_zob_close(int index);
QString vkd_zob_path(int index);
bool vkd_zob_read_only(int index);
void vkd_zob_set_busy_timeout(int index, int milliseconds);
// The first failure of the present write, or of the last one if none is open: a write runs
// from vkd_zob_lock_ex to vkd_zob_free_ex of the same key pair, or is one put outside a lock.
// ZOB_OK and an empty text when it went through.
zob_status_t vkd_zob_write_status(int index);
QString vkd_zob_write_error(int index);

zob_status_t vkd_zob_get(int index, int key1, int key2, void* record, int* length, int position);
zob_status_t vkd_zob_put(int index, int key1, int key2, const void* record, const int* length, int position);
zob_status_t vkd_zob_lock_ex(int index, int key1, int key2);
void vkd_zob_free_ex(int index, int key1, int key2);
// Asks whether a key pair holds records. mode 0: exactly *key1, *key2. mode 1: any key2 from
// *key2 up under *key1; the pair found is written back. When none is found, both become -1.
void vkd_zob_kenq_ex(int index, int* key1, int* key2, int mode);
// Number of records under the key pair, for tools and dumps.
int vkd_zob_count(int index, int key1, int key2);

// Numbered settings: the language of the desktop (0 German, 1 English), and the echo level
// written into the opening line of batch program blocks.
constexpr int kSettingLanguage = 102;
constexpr int kSettingEchoLevel = 108;
int vkd_lib_getvalue(int key);
void vkd_lib_setvalue(int key, int value);

// Looks a file up on the search path; empty if it is on none of the folders.
// mode bit 1: the folders of VKD_SEARCHPATH and the installed data folder;
// mode bit 2: the folder of the executable and its data/ folder. 3 searches all.
std::string vkd_lib_searchpath(const char* name, int mode);
QStringList vkd_lib_searchfolders(int mode);

// Message catalogue of a batch program, "<program>.msg" on the search path.
void vkd_lib_opentext(const char* program);
std::string vkd_lib_convtext(int textClass, int language, const char* key);
