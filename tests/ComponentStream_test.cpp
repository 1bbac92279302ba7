// Components read from form files, written to them, and saved with nothing but
// their changes.
#include <gtest/gtest.h>

#include "framework/rtl/Collection.h"
#include "framework/rtl/DynamicProps.h"
#include "framework/rtl/Strings.h"
#include "framework/rtl/SysUtils.h"
#include "framework/streaming/ComponentReader.h"
#include "framework/streaming/ComponentWriter.h"
#include "framework/streaming/FormFile.h"
#include "framework/streaming/LoadedForm.h"

namespace {

OBX_ENUM(TMood, mdGood, mdBad)
OBX_SET(TMoods, TMood)

class TSlot : public TCollectionItem {
    OBX_CLASS(TCollectionItem)
public:
    using TCollectionItem::TCollectionItem;
    OBX_PROPERTY(std::string, Text, "")
    OBX_PROPERTY(int, Width, 50)
};

const TMetaClass& TSlot::MetaClass()
{
    static const TMetaClass Class("TSlot", &TCollectionItem::MetaClass(), nullptr,
                                  {OBX_ROW(TSlot, Text), OBX_ROW(TSlot, Width).Default(50)});
    return Class;
}

class TThing : public TComponent {
    OBX_CLASS(TComponent)
public:
    explicit TThing(TComponent* Owner)
        : TComponent(Owner), FSlots(this, TSlot::MetaClass(), CreateItem<TSlot>)
    {
        ++Alive;
    }
    ~TThing() override { --Alive; }

    OBX_PROPERTY(std::string, Caption, "")
    OBX_PROPERTY(TMood, Mood, mdGood)
    OBX_PROPERTY(TMoods, Moods, {})
    OBX_PROPERTY(double, Rate, 0)
    OBX_PROPERTY(char, Mark, '*')
    OBX_PROPERTY(TThing*, Friend, nullptr)

public:
    TStringList* Lines() const { return &FLines; }
    void SetLines(TStringList* Value) { FLines.Assign(Value); }
    TCollection* Slots() const { return &FSlots; }
    TNotifyEvent OnGreet;
    void Greet(TObject*) { ++Greeted; }
    int Greeted = 0;
    int LoadedCount = 0;
    void Loaded() override
    {
        TComponent::Loaded();
        ++LoadedCount;
    }
    static inline int Alive = 0;

private:
    mutable TStringList FLines;
    mutable TCollection FSlots;
};

const TMetaClass& TThing::MetaClass()
{
    static const TMetaClass Class("TThing", &TComponent::MetaClass(), CreateComponent<TThing>,
                                  {
                                      OBX_ROW(TThing, Caption),
                                      OBX_ROW(TThing, Mood).Default(mdGood),
                                      OBX_ROW(TThing, Moods).Default(TMoods{}),
                                      OBX_ROW(TThing, Rate),
                                      OBX_ROW(TThing, Mark).Default('*'),
                                      OBX_ROW(TThing, Friend),
                                      Prop<&TThing::Lines, &TThing::SetLines>("Lines"),
                                      Prop<&TThing::Slots>("Slots"),
                                      Prop<&TThing::OnGreet>("OnGreet"),
                                  },
                                  {Published<&TThing::Greet>("Greet")});
    return Class;
}

constexpr const char* Known = "object Root: TThing\r\n"
                              "  Caption = 'Caf'#233\r\n"
                              "  Mood = mdBad\r\n"
                              "  Moods = [mdGood, mdBad]\r\n"
                              "  Rate = 2.500000000000000000\r\n"
                              "  Friend = Two\r\n"
                              "  Lines.Strings = (\r\n"
                              "    'one'\r\n"
                              "    'two')\r\n"
                              "  Slots = <\r\n"
                              "    item\r\n"
                              "      Text = 'first'\r\n"
                              "    end\r\n"
                              "    item\r\n"
                              "      Width = 80\r\n"
                              "    end>\r\n"
                              "  OnGreet = Greet\r\n"
                              "  object One: TThing\r\n"
                              "    Tag = 7\r\n"
                              "    Left = 8\r\n"
                              "    Top = 16\r\n"
                              "  end\r\n"
                              "  object Two: TThing\r\n"
                              "    Friend = One\r\n"
                              "  end\r\n"
                              "end\r\n";

std::unique_ptr<TThing> ReadThing(const TFormDocument& Document, TUnknownClasses Mode)
{
    RegisterClass(TThing::MetaClass());
    auto Root = std::make_unique<TThing>(nullptr);
    TComponentReader(Document, Mode).ReadRoot(*Root);
    return Root;
}

TLoadedForm LoadThing(const std::string& Text)
{
    RegisterClass(TThing::MetaClass());
    return TLoadedForm(ReadForm(Text), TUnknownClasses::Accept,
                       [](const TFormObject&) { return std::make_unique<TThing>(nullptr); });
}

TEST(ComponentReader, SetsRealProperties)
{
    const TFormDocument Document = ReadForm(Known);
    const auto Root = ReadThing(Document, TUnknownClasses::Refuse);
    EXPECT_EQ(Root->Name(), "Root");
    EXPECT_EQ(Root->Caption(), "Café");
    EXPECT_EQ(Root->Mood(), mdBad);
    EXPECT_EQ(Root->Moods().Bits(), 3u);
    EXPECT_EQ(Root->Rate(), 2.5);
    EXPECT_EQ(Root->Lines()->Count(), 2);
    EXPECT_EQ(Root->Slots()->Count(), 2);
    EXPECT_EQ(Root->Friend(), Root->FindComponent("two"));
    EXPECT_EQ(Root->FindComponent("One")->DesignTop, 16);
    EXPECT_EQ(Root->LoadedCount, 1);
    EXPECT_FALSE(Root->HasState(csLoading) || Root->HasState(csReading));
    Root->OnGreet(nullptr);
    EXPECT_EQ(Root->Greeted, 1);
}

TEST(ComponentWriter, GivesBackTheFile)
{
    TFormDocument Document = ReadForm(Known);
    const auto Root = ReadThing(Document, TUnknownClasses::Refuse);
    TFormDocument Fresh;
    Fresh.Root = TComponentWriter(*Root).WriteRoot();
    EXPECT_EQ(WriteForm(Fresh), Known);
}

// What is made before the error must not stay behind, neither owned by the form
// nor leaked.
TEST(ComponentReader, ErrorsNameThePlaceAndLeaveNothing)
{
    const struct {
        const char* Name;
        const char* Body;
        const char* Message;
    } Cases[] = {
        {"class", "  object B: TNobody\n  end\n", "5:3: Class TNobody not found"},
        {"property", "  Captain = 'x'\n", "5:3: Error reading Root.Captain: Property does not exist"},
        {"kind", "  Caption = 5\n", "5:3: Error reading Root.Caption: Invalid property value"},
        {"enumerator", "  Mood = mdUgly\n", "5:3: Error reading Root.Mood: Invalid property value"},
        {"range", "  Tag = 5000000000\n", "5:3: Error reading Root.Tag: Range check error"},
        {"method", "  OnGreet = Nobody\n", "5:3: Error reading Root.OnGreet: Unable to find method Nobody"},
        {"reference", "  Friend = Nobody\n", "5:3: Reference Nobody cannot be resolved"},
        {"duplicate", "  object A: TThing\n  end\n", "A component named A already exists"},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Name);
        const std::string Children = "  object A: TThing\n  end\n";
        const bool IsChild = std::string(Case.Body).find("object") != std::string::npos;
        const std::string Text =
            "object Root: TThing\n  Tag = 1\n" +
            (IsChild ? Children + Case.Body : "  Tag = 2\n  Tag = 3\n" + (Case.Body + Children)) + "end\n";
        const TFormDocument Document = ReadForm(Text);
        RegisterClass(TThing::MetaClass());
        TThing Root(nullptr);
        const int AliveBefore = TThing::Alive;
        try {
            TComponentReader(Document, TUnknownClasses::Refuse).ReadRoot(Root);
            ADD_FAILURE() << "no error";
        } catch (const std::exception& Error) {
            EXPECT_NE(std::string(Error.what()).find(Case.Message), std::string::npos) << Error.what();
        }
        EXPECT_EQ(TThing::Alive, AliveBefore);
        EXPECT_EQ(Root.ComponentCount(), 0);
    }
}

TEST(ComponentReader, UnknownClassesGetTheirPropertiesFromTheFile)
{
    const TFormDocument Document = ReadForm("object Form1: TForm1\n"
                                            "  Caption = 'Hello'\n"
                                            "  Nothing = mdGood\n"
                                            "  object Grid: TFancyGrid\n"
                                            "    Items.Strings = (\n"
                                            "      'a'\n"
                                            "      'b')\n"
                                            "    Panels = <\n"
                                            "      item\n"
                                            "        Text = 'p'\n"
                                            "        Title.Caption = 't'\n"
                                            "      end>\n"
                                            "    Font.Name = 'Tahoma'\n"
                                            "    Font.Style = [fsBold]\n"
                                            "    Visible = False\n"
                                            "    Align = alTop\n"
                                            "    Source = DM.Source\n"
                                            "    OnClick = GridClick\n"
                                            "    Cells = (\n"
                                            "      1\n"
                                            "      'cell')\n"
                                            "    Glyph.Data = {0102}\n"
                                            "    Big = 5000000000\n"
                                            "    object Grid: TFancyField\n"
                                            "    end\n"
                                            "  end\n"
                                            "end\n");
    const auto Root = ReadThing(Document, TUnknownClasses::Accept);
    EXPECT_EQ(Root->ClassName(), "TForm1");
    EXPECT_TRUE(Root->InheritsFrom(TThing::MetaClass()));
    EXPECT_EQ(Root->Caption(), "Hello");
    const TComponent* const Grid = Root->FindComponent("Grid");
    EXPECT_EQ(Grid->ClassName(), "TFancyGrid");
    std::string Kinds;
    for (const TPropInfo* const Prop : GetPropList(*Grid))
        Kinds += Prop->Name + ":" + std::to_string(Prop->Kind()) + " ";
    EXPECT_EQ(
        Kinds,
        "Name:10 Tag:1 Items:7 Panels:7 Font:7 Visible:3 Align:3 Source:0 OnClick:0 Cells:7 Glyph:7 Big:13 ");
    const auto* const Panels =
        dynamic_cast<TCollection*>(GetObjectProp(*Grid, *GetPropInfo(*Grid, "Panels")));
    ASSERT_NE(Panels, nullptr);
    EXPECT_EQ(GetStrProp(*Panels->Items(0), *GetPropInfo(*Panels->Items(0), "Text")), "p");
    const auto* const Cells = dynamic_cast<TStrings*>(GetObjectProp(*Grid, *GetPropInfo(*Grid, "Cells")));
    ASSERT_NE(Cells, nullptr);
    EXPECT_EQ(Cells->Count(), 1);
    // The second component of one name cannot have it; it is there all the same.
    EXPECT_EQ(Root->ComponentCount(), 2);
}

// The file has odd spelling and things that no component knows; one changed text
// must change that text alone.
TEST(LoadedForm, SavesNothingButTheChanges)
{
    const std::string Text = "object Root:TThing\n"
                             "   Caption = 'Old'   \n"
                             "\n"
                             "  Mood = mdGood\n"
                             "  Unheard = 12\n"
                             "  Lines.Strings = (  'one'\n    'two' )\n"
                             "  Slots = <\n"
                             "    item\n"
                             "      Strange = 1\n"
                             "      Text = 'first'\n"
                             "    end\n"
                             "    item\n"
                             "    end>\n"
                             "  object Grid: TFancyGrid\n"
                             "    Columns = <\n"
                             "      item\n"
                             "        Title.Caption = 'deep'\n"
                             "      end>\n"
                             "    Cells = (1\n      'cell' 2)\n"
                             "  end\n"
                             "end";
    TLoadedForm Form = LoadThing(Text);
    EXPECT_EQ(WriteForm(Form.Save()), Text);

    auto& Root = static_cast<TThing&>(Form.Root());
    Root.SetCaption("New");
    Root.Lines()->Put(1, "zwei");
    static_cast<TSlot*>(Root.Slots()->Items(0))->SetText("erste");
    const TComponent& Grid = *Root.FindComponent("Grid");
    dynamic_cast<TStrings*>(GetObjectProp(Grid, *GetPropInfo(Grid, "Cells")))->Put(0, "Zelle");
    std::string Expected = Text;
    const auto Replace = [&](const std::string& Old, const std::string& New) {
        Expected.replace(Expected.find(Old), Old.size(), New);
    };
    Replace("'Old'", "'New'");
    Replace("'two'", "'zwei'");
    Replace("'first'", "'erste'");
    Replace("'cell'", "'Zelle'");
    EXPECT_EQ(WriteForm(Form.Save()), Expected);

    Root.SetCaption("Old");
    Root.Lines()->Put(1, "two");
    static_cast<TSlot*>(Root.Slots()->Items(0))->SetText("first");
    dynamic_cast<TStrings*>(GetObjectProp(Grid, *GetPropInfo(Grid, "Cells")))->Put(0, "cell");
    EXPECT_EQ(WriteForm(Form.Save()), Text);

    // A property that the file does not have is added where its value changed.
    Root.SetMood(mdBad);
    static_cast<TComponent*>(Root.FindComponent("Grid"))->SetTag(3);
    const std::string Added = WriteForm(Form.Save());
    EXPECT_NE(Added.find("Mood = mdBad"), std::string::npos);
    EXPECT_NE(Added.find("    Tag = 3\n"), std::string::npos);
    delete Root.FindComponent("Grid");
    EXPECT_EQ(WriteForm(Form.Save()).find("'deep'"), std::string::npos);
}

} // namespace
