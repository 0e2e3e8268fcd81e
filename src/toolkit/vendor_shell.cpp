// vendor_shell.cpp: makes shells Motif's, whatever order a host's libraries come in.
//
// libXt and libXm both define the vendor shell class under one name; Motif works only with its own, and
// the dynamic linker takes the one that comes first. A host that links libXt itself brings libXt's, and
// Motif's first shell then ends the process with an X error. While no widget class has been
// initialized, Motif's record can still be put in the place that everybody refers to.

#include <X11/IntrinsicP.h>
#include <X11/ShellP.h>
#include <X11/VendorP.h>
#include <Xm/Display.h>
#include <dlfcn.h>

namespace {

const VendorShellClassRec* motifsVendorShell()
{
    Dl_info motif{};
    if (!dladdr(reinterpret_cast<void*>(XmGetXmDisplay), &motif)) return nullptr;
    void* const library = dlopen(motif.dli_fname, RTLD_LAZY | RTLD_NOLOAD);
    if (!library) return nullptr;
    const void* const record = dlsym(library, "vendorShellClassRec");
    dlclose(library);
    return static_cast<const VendorShellClassRec*>(record);
}

// When the library is loaded: before the host can make a widget.
__attribute__((constructor)) void useMotifsVendorShell()
{
    const VendorShellClassRec* const motifs = motifsVendorShell();
    const bool isInUse = vendorShellClassRec.core_class.class_inited != 0;
    if (motifs && motifs != &vendorShellClassRec && !isInUse) vendorShellClassRec = *motifs;
}

}  // namespace
