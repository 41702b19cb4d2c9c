#include "HostileFiles.h"

#include <algorithm>

namespace {

/// What one tag, one text or one document type may have.
constexpr int Token = 15'000;

const QByteArray Item = "<customItem><name>n</name></customItem>";
const QByteArray Head = "<custom><customItems>" + Item;
const QByteArray Tail = "</customItems></custom>";
const QByteArray Letters(1000, 'x');
const QByteArray Entity = "<!DOCTYPE custom [<!ENTITY a '" + QByteArray(4000, 'x') + "'>";

/// Entities of which each holds ten of the one before.
QByteArray tower(const QByteArray& mark, const QByteArray& reference) {
    QByteArray declarations = "<!DOCTYPE custom [<!ENTITY " + mark + "e0 '" + QByteArray(300, ' ') + "'>";
    for (int level = 1; level < 12; ++level) {
        const QByteArray below = reference + "e" + QByteArray::number(level - 1) + ";";
        declarations += "<!ENTITY " + mark + "e" + QByteArray::number(level) + " '" + below.repeated(10) + "'>";
    }
    return declarations;
}

QList<HostileFile> longFiles() {
    return {
        {"items", Head, Item, Tail},
        {"items of a job", "<job>", "<a/>", "</job>"},
        {"names of elements", "<job>", "<a@/>", "</job>"},
        {"one text", Head + "<a>", Letters, "</a>" + Tail},
        {"one text of references", Head + "<a>", "&#38;", "</a>" + Tail},
        {"one text in pieces", "<job><a>", "xxxxxxxx<!---->", "</a></job>", true},
        {"one CDATA", Head + "<![CDATA[", Letters, "]]>" + Tail},
        {"one attribute", Head + "<a b='", Letters, "'/>" + Tail},
        {"one comment", Head + "<!--", Letters, "-->" + Tail},
        {"one instruction", Head + "<?a ", Letters, "?>" + Tail},
        {"one name", Head + "<", Letters, "/>" + Tail},
        {"blanks before the root", "", QByteArray(1000, ' '), Head + Tail},
        {"one document type", "<!DOCTYPE custom [", "<!ELEMENT a@ ANY>", "]>" + Head + Tail},
        {"levels", Head, "<a>", ""},
        {"attributes of one element", Head + "<a", " a@=''", "/>" + Tail},
        {"tags full of attributes", Head, "<a" + QByteArray(" a@=''").repeated(1800) + "/>", Tail},
        {"tags of 64 attributes", Head, "<a" + QByteArray(" a@=''").repeated(64) + "/>", Tail, true},
    };
}

QList<HostileFile> growingFiles() {
    return {
        {"an entity in a text", Entity + "]>" + Head + "<a>", "&a;", "</a>" + Tail},
        {"an entity in an attribute", Entity + "]>" + Head + "<a b='", "&a;", "'/>" + Tail},
        {"an entity in a default", Entity + "<!ATTLIST a b CDATA '", "&a;", "'>]>" + Head + Tail, false, Token},
        {"a parameter entity", "<!DOCTYPE custom [<!ENTITY % a '" + QByteArray(4000, ' ') + "'>", "%a;",
         "]>" + Head + Tail, false, Token},
        {"a parameter entity of defaults",
         Entity + "<!ENTITY % b '<!ATTLIST a b@ CDATA \"" + QByteArray("&#38;a;").repeated(400) + "\">'>", "%b;",
         "]>" + Head + Tail, false, Token},
        {"entities of entities", tower("", "&") + "]>" + Head + "<a>&e11;</a>", "", Tail},
        {"parameter entities of entities", tower("% ", "&#37;") + "%e11;]>" + Head, "", Tail},
        {"a long default of many elements",
         "<!DOCTYPE custom [<!ATTLIST a b CDATA '" + QByteArray(Token, 'x') + "'>]>" + Head, "<a/>", Tail},
        {"many defaults of many elements",
         "<!DOCTYPE custom [<!ATTLIST a" + QByteArray(" a@ CDATA ''").repeated(1000) + ">]>" + Head, "<a/>", Tail},
    };
}

QList<HostileFile> reachingFiles() {
    const QByteArray address = "SYSTEM 'http://127.0.0.1:9/hostile.dtd'";
    return {
        {"a document type elsewhere", "<!DOCTYPE custom " + address + ">" + Head, "", Tail, true},
        {"a document type in a file", "<!DOCTYPE custom SYSTEM 'file:///etc/hostname'>" + Head, "", Tail, true},
        {"an entity elsewhere", "<!DOCTYPE custom [<!ENTITY a " + address + ">]>" + Head + "<a>&a;</a>", "", Tail},
        {"an entity in a file", "<!DOCTYPE custom [<!ENTITY a SYSTEM '/etc/hostname'>]>" + Head + "<a>&a;</a>", "",
         Tail},
        {"a parameter entity elsewhere", "<!DOCTYPE custom [<!ENTITY % a " + address + "> %a;]>" + Head, "", Tail},
        {"an entity of a document type elsewhere", "<!DOCTYPE custom " + address + ">" + Head + "<a>&a;</a>", "", Tail},
        {"the same in an attribute", "<!DOCTYPE custom " + address + ">" + Head + "<a b='&a;'/>", "", Tail},
    };
}

}  // namespace

QList<HostileFile> hostileFiles() {
    return longFiles() + growingFiles() + reachingFiles();
}

QByteArray bytesOf(const HostileFile& file, int size) {
    if (file.most != 0) {
        size = std::min(size, file.most);
    }
    QByteArray bytes = file.head;
    bytes.reserve(size + file.piece.size() + file.tail.size());
    int number = 0;
    while (!file.piece.isEmpty() && bytes.size() + file.piece.size() + file.tail.size() + 8 < size) {
        for (const char letter : file.piece) {
            letter == '@' ? bytes += QByteArray::number(++number, 36) : bytes += letter;
        }
    }
    return bytes + file.tail;
}
