#include "platform/FolderPicker.h"

#include <QDir>
#include <QWidget>

#include <windows.h>

#include <objbase.h>
#include <shobjidl.h>

namespace TOLVAN_NAMESPACE::Platform
{

namespace
{

constexpr int okButton = 1;

/// State of the open picker, shared by the window procedure and the events handler.
struct PickerState {
    wchar_t* folder = nullptr; ///< owned by the system's allocator
    bool folderChosen = false;
    HWND dialog = nullptr;
    HWND button = nullptr;
    WNDPROC buttonProcedure = nullptr;
    bool open = false;
};
PickerState picker;

template <class Interface>
class ComPointer
{
public:
    ComPointer() = default;
    ~ComPointer()
    {
        if (m_object) {
            m_object->Release();
        }
    }
    ComPointer(const ComPointer&) = delete;
    ComPointer& operator=(const ComPointer&) = delete;
    Interface* operator->() const { return m_object; }
    Interface* get() const { return m_object; }
    Interface** out() { return &m_object; }
    void** outVoid() { return reinterpret_cast<void**>(&m_object); }

private:
    Interface* m_object = nullptr;
};

const wchar_t* wide(const QString& text)
{
    return reinterpret_cast<const wchar_t*>(text.utf16());
}

/// Releasing the mouse on the button, or the space bar on it, chooses the folder that is open.
LRESULT CALLBACK buttonProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const bool pressed = message == WM_LBUTTONUP || (message == WM_KEYUP && wParam == VK_SPACE);
    if (pressed && window == picker.button && picker.dialog && picker.folder) {
        picker.folderChosen = true;
        SendMessageW(picker.dialog, WM_CLOSE, 0, 0);
        return 0;
    }
    return CallWindowProcW(picker.buttonProcedure, window, message, wParam, lParam);
}

void rememberFolder(IFileDialog* dialog)
{
    ComPointer<IShellItem> item;
    if (FAILED(dialog->GetFolder(item.out()))) {
        return;
    }
    CoTaskMemFree(picker.folder);
    picker.folder = nullptr;
    if (FAILED(item->GetDisplayName(SIGDN_FILESYSPATH, &picker.folder))) {
        picker.folder = nullptr; // a folder of the shell that is not in a file system
    }
}

void takeOverButton(IFileDialog* dialog)
{
    ComPointer<IOleWindow> window;
    if (FAILED(dialog->QueryInterface(IID_IOleWindow, window.outVoid())) ||
        FAILED(window->GetWindow(&picker.dialog))) {
        return;
    }
    picker.button = GetDlgItem(picker.dialog, okButton);
    if (picker.button) {
        picker.buttonProcedure = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrW(picker.button, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&buttonProcedure)));
    }
}

QT_WARNING_PUSH
QT_WARNING_DISABLE_GCC("-Wnon-virtual-dtor") // objects of COM are deleted by their own Release()

class EventsHandler final : public IFileDialogEvents
{
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override
    {
        if (!object) {
            return E_POINTER;
        }
        const bool known = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IFileDialogEvents);
        *object = known ? static_cast<IFileDialogEvents*>(this) : nullptr;
        if (!known) {
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override
    {
        return static_cast<ULONG>(InterlockedIncrement(&m_references));
    }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const LONG left = InterlockedDecrement(&m_references);
        if (left == 0) {
            delete this;
        }
        return static_cast<ULONG>(left);
    }
    HRESULT STDMETHODCALLTYPE OnFileOk(IFileDialog*) override
    {
        return picker.folderChosen ? S_OK : S_FALSE; // choosing a file never closes the picker
    }
    HRESULT STDMETHODCALLTYPE OnFolderChanging(IFileDialog*, IShellItem*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnFolderChange(IFileDialog* dialog) override
    {
        rememberFolder(dialog);
        if (!picker.buttonProcedure) {
            takeOverButton(dialog);
        }
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnSelectionChange(IFileDialog*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnShareViolation(IFileDialog*, IShellItem*,
                                               FDE_SHAREVIOLATION_RESPONSE*) override
    {
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnTypeChange(IFileDialog*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnOverwrite(IFileDialog*, IShellItem*, FDE_OVERWRITE_RESPONSE*) override
    {
        return S_OK;
    }

private:
    ~EventsHandler() = default;

    LONG m_references = 1;
};

QT_WARNING_POP

/// COM stays initialised until the process ends, because objects of the shell may outlive the picker.
bool comIsReady()
{
    static const bool ready =
        SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE));
    return ready;
}

bool setOpenFolder(IFileDialog* dialog, const QString& folder)
{
    ComPointer<IShellItem> item;
    return SUCCEEDED(SHCreateItemFromParsingName(wide(folder), nullptr, IID_IShellItem, item.outVoid())) &&
           SUCCEEDED(dialog->SetFolder(item.get()));
}

bool prepare(IFileDialog* dialog, const QString& caption, const QString& folder, const QString& patterns)
{
    const COMDLG_FILTERSPEC images = {L"Image Files", wide(patterns)};
    if (FAILED(dialog->SetFileTypes(1, &images)) || FAILED(dialog->SetOkButtonLabel(L"Select Folder")) ||
        (!caption.isEmpty() && FAILED(dialog->SetTitle(wide(caption)))) ||
        (!folder.isEmpty() && !setOpenFolder(dialog, folder))) {
        return false;
    }
    FILEOPENDIALOGOPTIONS options = 0;
    if (FAILED(dialog->GetOptions(&options)) || FAILED(dialog->SetOptions(options | FOS_FORCEFILESYSTEM))) {
        return false;
    }
    ComPointer<IKnownFolderManager> unused;
    CoCreateInstance(CLSID_KnownFolderManager, nullptr, CLSCTX_INPROC_SERVER, IID_IKnownFolderManager,
                     unused.outVoid());
    return true;
}

QString showPicker(QWidget* parent, const QString& caption, const QString& folder, const QString& patterns)
{
    ComPointer<IFileDialog> dialog;
    if (FAILED(CoCreateInstance(CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER, IID_IFileDialog,
                                dialog.outVoid()))) {
        return {};
    }
    ComPointer<IFileDialogEvents> handler;
    *handler.out() = new EventsHandler;
    DWORD advice = 0;
    if (FAILED(dialog->Advise(handler.get(), &advice))) {
        return {};
    }
    QString chosen;
    if (prepare(dialog.get(), caption, folder, patterns)) {
        dialog->Show(parent ? reinterpret_cast<HWND>(parent->window()->winId()) : nullptr);
        if (picker.folderChosen) {
            chosen = QString::fromWCharArray(picker.folder);
        }
    }
    dialog->Unadvise(advice);
    return chosen;
}

} // namespace

QString pickFolder(QWidget* parent, const QString& caption, const QString& dir, const QString& filter)
{
    if (picker.open || !comIsReady()) {
        return {};
    }
    QString patterns = filter;
    patterns.replace(QLatin1Char(' '), QLatin1Char(';'));
    picker.open = true;
    const QString chosen = showPicker(parent, caption, QDir::toNativeSeparators(dir), patterns);
    CoTaskMemFree(picker.folder);
    picker = PickerState();
    return chosen;
}

} // namespace TOLVAN_NAMESPACE::Platform
