#include "binary/VirtualTables.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cxxabi.h>
#include <dlfcn.h>
#include <link.h>
#include <memory>
#include <typeinfo>

namespace {

QString demangled(const char* name)
{
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> text(abi::__cxa_demangle(name, nullptr, nullptr, &status),
                                                           &std::free);
    return QString::fromUtf8(status == 0 ? text.get() : name);
}

QString typeName(const std::type_info& type)
{
    return demangled(type.name());
}

// TC::Name as the mangled name of a class.
QByteArray mangled(const QString& className)
{
    QByteArray name = "N";
    for (const QString& part : className.split(QLatin1String("::")))
        name += QByteArray::number(part.size()) + part.toUtf8();
    return name + 'E';
}

/// What the linker was asked to put into each word of a library. Functions of one body may share an address, so the
/// addresses alone do not tell them apart.
QHash<quintptr, QByteArray> relocatedWords(const link_map& library)
{
    const auto address = [&library](ElfW(Addr) value) {
        return value < library.l_addr ? library.l_addr + value : value;
    };
    ElfW(Addr) symbols = 0;
    ElfW(Addr) names = 0;
    ElfW(Addr) relocations = 0;
    std::size_t size = 0;
    for (const ElfW(Dyn)* entry = library.l_ld; entry->d_tag != DT_NULL; ++entry) {
        if (entry->d_tag == DT_SYMTAB)
            symbols = address(entry->d_un.d_ptr);
        else if (entry->d_tag == DT_STRTAB)
            names = address(entry->d_un.d_ptr);
        else if (entry->d_tag == DT_RELA)
            relocations = address(entry->d_un.d_ptr);
        else if (entry->d_tag == DT_RELASZ)
            size = entry->d_un.d_val;
    }
    QHash<quintptr, QByteArray> words;
    const auto* const first = reinterpret_cast<const ElfW(Rela)*>(relocations);
    for (const ElfW(Rela)* at = first; at != first + size / sizeof(ElfW(Rela)); ++at) {
        const auto& symbol = reinterpret_cast<const ElfW(Sym)*>(symbols)[ELF64_R_SYM(at->r_info)];
        const QByteArray name(reinterpret_cast<const char*>(names) + symbol.st_name);
        if (!name.isEmpty())
            words.insert(library.l_addr + at->r_offset, name);
    }
    return words;
}

QString slotOf(const QByteArray& symbol)
{
    QString name = demangled(symbol.constData());
    if (name == QLatin1String("__cxa_pure_virtual"))
        return pureSlot();
    const QLatin1String thunk("non-virtual thunk to ");
    if (name.startsWith(thunk))
        name.remove(0, thunk.size());
    const int operation = name.lastIndexOf(QLatin1String("::"), name.indexOf(QLatin1Char('(')));
    return operation < 0 ? QStringLiteral("a function without a name")
                         : slotText(name.left(operation), name.mid(operation + 2));
}

} // namespace

QString slotText(const QString& implementer, const QString& operation)
{
    const QString told = operation.startsWith(QLatin1Char('~')) ? QStringLiteral("~") : operation;
    return (implementer.startsWith(QLatin1String("TC::")) ? implementer : QStringLiteral("toolkit")) + QLatin1Char(' ')
        + told;
}

QString pureSlot()
{
    return QStringLiteral("no implementation");
}

VirtualTableReader::VirtualTableReader(const QString& libraryPath)
    : m_library(dlopen(libraryPath.toLocal8Bit().constData(), RTLD_NOW))
    , m_error(m_library ? QString() : QString::fromLocal8Bit(dlerror()))
{
    link_map* map = nullptr;
    if (m_library && dlinfo(m_library, RTLD_DI_LINKMAP, &map) == 0)
        m_words = relocatedWords(*map);
}

QString VirtualTableReader::error() const
{
    return m_error;
}

const void* VirtualTableReader::symbol(const char* prefix, const QString& className) const
{
    return dlsym(m_library, (prefix + mangled(className)).constData());
}

// A table is the offset of its base, the class's type information, and the slots; tables follow each other.
VirtualTables VirtualTableReader::tablesOf(const QString& className) const
{
    const auto* const words = static_cast<const void* const*>(symbol("_ZTV", className));
    const void* const type = symbol("_ZTI", className);
    Dl_info info{};
    const ElfW(Sym)* entry = nullptr;
    void** const extra = reinterpret_cast<void**>(const_cast<ElfW(Sym)**>(&entry));
    if (!words || !type || !dladdr1(words, &info, extra, RTLD_DL_SYMENT) || !entry)
        return {};
    const std::size_t count = entry->st_size / sizeof(void*);
    VirtualTables tables;
    for (std::size_t i = 0; i < count; ++i) {
        if (i + 1 < count && words[i + 1] == type) {
            tables.append(QStringList());
            ++i;
        } else if (!tables.isEmpty()) {
            // A class that cannot stand alone may have no address where its destructor would be.
            tables.last().append(words[i] ? slotOf(m_words.value(quintptr(&words[i])))
                                          : slotText(className, QStringLiteral("~")));
        }
    }
    return tables;
}

QStringList VirtualTableReader::basesOf(const QString& className) const
{
    const auto* const type = static_cast<const std::type_info*>(symbol("_ZTI", className));
    if (const auto* const single = dynamic_cast<const abi::__si_class_type_info*>(type))
        return {typeName(*single->__base_type)};
    QStringList bases;
    if (const auto* const several = dynamic_cast<const abi::__vmi_class_type_info*>(type)) {
        for (unsigned i = 0; i < several->__base_count; ++i)
            bases.append(typeName(*several->__base_info[i].__base_type));
    }
    return bases;
}
