#include "platform/portable/dialogs/ShellView.h"

#include "platform/portable/Control.h"

namespace {

constexpr int ListId = 1;
constexpr int IconSize = 16;
enum { FolderImage, FileImage };

void FillBox(HDC Dc, const RECT& Rect, COLORREF Color)
{
    const HBRUSH Brush = CreateSolidBrush(Color);
    FillRect(Dc, &Rect, Brush);
    FrameRect(Dc, &Rect, static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH)));
    DeleteObject(Brush);
}

// A folder and a sheet of paper.
HIMAGELIST MakeImages()
{
    const HIMAGELIST Images = ImageList_Create(IconSize, IconSize, ILC_COLOR24 | ILC_MASK, 2, 1);
    const HDC Screen = GetDC(nullptr);
    const HDC Dc = CreateCompatibleDC(Screen);
    const HBITMAP Bitmap = CreateCompatibleBitmap(Screen, 2 * IconSize, IconSize);
    ReleaseDC(nullptr, Screen);
    const HGDIOBJ Old = SelectObject(Dc, Bitmap);
    constexpr COLORREF Outside = RGB(255, 0, 255), Folder = RGB(240, 200, 90);
    const RECT Whole{0, 0, 2 * IconSize, IconSize};
    FillBox(Dc, {-1, -1, Whole.right + 1, Whole.bottom + 1}, Outside);
    FillBox(Dc, {1, 2, 8, 6}, Folder);
    FillBox(Dc, {1, 4, 15, 14}, Folder);
    FillBox(Dc, {IconSize + 3, 1, IconSize + 13, 15}, RGB(255, 255, 255));
    SelectObject(Dc, Old);
    DeleteDC(Dc);
    ImageList_AddMasked(Images, Bitmap, Outside);
    DeleteObject(Bitmap);
    return Images;
}

class TShellView final : public TSystemControl {
public:
    using TSystemControl::TSystemControl;
    ~TShellView() override
    {
        if (FImages)
            ImageList_Destroy(FImages);
    }
    LRESULT Handle(UINT Message, WPARAM WParam, LPARAM LParam) override;

private:
    HWND List() const { return GetDlgItem(Window(), ListId); }
    void Start(bool Multiple);

    HIMAGELIST FImages = nullptr;
};

LRESULT TShellView::Handle(UINT Message, WPARAM WParam, LPARAM LParam)
{
    switch (Message) {
    case WM_CREATE:
        Start(Structure<CREATESTRUCTA>(LParam).lpCreateParams != nullptr);
        return 0;
    case WM_SIZE: {
        const RECT Rect = ClientRect();
        SetWindowPos(List(), nullptr, 0, 0, Rect.right, Rect.bottom, SWP_NOZORDER | SWP_NOACTIVATE);
        return 0;
    }
    case WM_SETFONT:
        SendMessageA(List(), Message, WParam, LParam);
        return TSystemControl::Handle(Message, WParam, LParam);
    case WM_SETFOCUS:
        SetFocus(List());
        return 0;
    case WM_NOTIFY:
        return SendMessageA(GetParent(Window()), Message, WParam, LParam);
    default:
        return TSystemControl::Handle(Message, WParam, LParam);
    }
}

void TShellView::Start(bool Multiple)
{
    const RECT Rect = ClientRect();
    const HWND View =
        CreateWindowExA(WS_EX_CLIENTEDGE, WC_LISTVIEWA, "",
                        WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_LIST | LVS_SHAREIMAGELISTS |
                            LVS_SHOWSELALWAYS | (Multiple ? 0u : DWORD{LVS_SINGLESEL}),
                        0, 0, Rect.right, Rect.bottom, Window(),
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(ListId)), nullptr, nullptr);
    FImages = MakeImages();
    SendMessageA(View, LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(FImages));
}

} // namespace

void RegisterShellViews()
{
    RegisterControl<TShellView>("SHELLDLL_DefView");
}

HWND CreateShellView(HWND Dialog, int Id, bool Multiple)
{
    static char Many;
    return CreateWindowExA(0, "SHELLDLL_DefView", "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 0, 0, 0, 0, Dialog,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(Id)), nullptr,
                           Multiple ? &Many : nullptr);
}

void FillShellView(HWND View, const std::vector<TFolderEntry>& Entries)
{
    const HWND List = GetDlgItem(View, ListId);
    SendMessageA(List, LVM_DELETEALLITEMS, 0, 0);
    for (std::size_t Index = 0; Index < Entries.size(); ++Index) {
        std::string Name = Entries[Index].Name;
        LVITEMA Item{};
        Item.mask = LVIF_TEXT | LVIF_IMAGE;
        Item.iItem = static_cast<int>(Index);
        Item.pszText = Name.data();
        Item.iImage = Entries[Index].Folder ? FolderImage : FileImage;
        SendMessageA(List, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&Item));
    }
}

std::vector<std::size_t> ChosenInView(HWND View)
{
    const HWND List = GetDlgItem(View, ListId);
    std::vector<std::size_t> Result;
    for (LRESULT Index = -1;;) {
        Index = SendMessageA(List, LVM_GETNEXTITEM, static_cast<WPARAM>(Index), LVNI_SELECTED);
        if (Index < 0)
            return Result;
        Result.push_back(static_cast<std::size_t>(Index));
    }
}
