"""The three colour schemes of the built-in styles. A pair is the top and the bottom of a gradient;
a bar's stops run from its lit edge to its dark one."""


class Scheme:
    def __init__(self, **colours):
        self.__dict__.update(colours)


BLUE = Scheme(
    bar=("#86b0f0", "#5789de", "#3a6cc8", "#2a57ac", "#1b3f86"), bar_rim="#142f66",
    tray=("#7fc0ea", "#4f9ad6", "#3480bf", "#2768a2", "#1a4f82"),
    ink=("#2f57a6", "#0e2150"), ink_over=("#3f70c8", "#16306c"), ink_pressed=("#0b1a40", "#1a3570"),
    glow="#86dcff",
    task=("#5f93e6", "#3a6ec9"), task_over=("#76a9f4", "#467fdc"), task_pressed=("#1d4390", "#3163b8"),
    task_rim="#1c4290",
    head=("#5c93e8", "#2553ae"), foot=("#3d74d0", "#1c458f"),
    panel=("#ffffff", "#f7faff"), places=("#e9f1fd", "#d9e6f9"), frame="#2853a4", line="#9db9e6",
    gutter=("#dce8fa", "#b9d0f2"),
    select=("#6ea4f3", "#3571d3"), select_pressed=("#2f63c0", "#4b86e2"), select_rim="#2a5cb6",
    flash=("#ffc966", "#f08a24"), flash_over=("#ffdb94", "#f7a243"), flash_rim="#a85408",
    mark="#ffffff", arrow=("#5f9af0", "#1f4fa8"),
    text="255 255 255", text_over="255 255 255", dark="20 38 74", selected="255 255 255",
    disabled="140 151 173", heading="255 255 255", place="29 58 114", alarm="64 28 0", dimmed="176 196 232",
    window="255 255 255", face="233 241 253", highlight="62 122 219")

HOMESTEAD = Scheme(
    bar=("#d2dda4", "#aebd74", "#91a355", "#788a42", "#56652c"), bar_rim="#3e4a1e",
    tray=("#e0d9a0", "#c2b974", "#a89f58", "#8c8445", "#696231"),
    ink=("#6f8638", "#2b3a14"), ink_over=("#87a247", "#3c4f1d"), ink_pressed=("#222e0f", "#475a22"),
    glow="#f0f8b0",
    task=("#97ab5a", "#6c8038"), task_over=("#a9bd6b", "#7b9045"), task_pressed=("#566829", "#7a8e45"),
    task_rim="#546529",
    head=("#adc071", "#687d37"), foot=("#8fa352", "#53662a"),
    panel=("#fffff9", "#fcfcf0"), places=("#f3f5e0", "#e6eacb"), frame="#64753a", line="#bcc795",
    gutter=("#eaf0d2", "#d0dbab"),
    select=("#a1b55f", "#6e8334"), select_pressed=("#5d712b", "#82984a"), select_rim="#566a27",
    flash=("#ffc170", "#e27d2c"), flash_over=("#ffd59b", "#ee9a4e"), flash_rim="#994a0c",
    mark="#fffff4", arrow=("#a3ba5c", "#55692a"),
    text="255 255 255", text_over="255 255 244", dark="44 52 20", selected="255 255 255",
    disabled="150 156 128", heading="255 255 255", place="70 84 34", alarm="62 30 0", dimmed="206 214 172",
    window="255 255 249", face="243 245 224", highlight="128 149 63")

METALLIC = Scheme(
    bar=("#ffffff", "#e6e8f0", "#cfd2df", "#b6bacb", "#9298af"), bar_rim="#6a7088",
    tray=("#f2f6ff", "#d3dbec", "#bac4db", "#a2aec9", "#818ead"),
    ink=("#7c8398", "#343a4e"), ink_over=("#949cb3", "#454c64"), ink_pressed=("#2a2f40", "#565d74"),
    glow="#cdeaff",
    task=("#fdfdff", "#dcdfe9"), task_over=("#ffffff", "#eef1f8"), task_pressed=("#9ea5bb", "#c3c8d8"),
    task_rim="#8187a0",
    head=("#d4d8e5", "#9298b0"), foot=("#bfc4d5", "#7f86a0"),
    panel=("#ffffff", "#f9fafc"), places=("#f2f4f9", "#e3e6f0"), frame="#787e97", line="#c3c8d8",
    gutter=("#eceff6", "#d2d7e5"),
    select=("#dfe8fb", "#a9bce6"), select_pressed=("#93a8d8", "#b9c9ee"), select_rim="#7288bd",
    flash=("#ffdc8e", "#f2a944"), flash_over=("#ffe9b8", "#f9c26e"), flash_rim="#b06d12",
    mark="#ffffff", arrow=("#9aa6c6", "#525c7c"),
    text="36 41 58", text_over="16 24 56", dark="36 41 58", selected="16 28 66",
    disabled="150 155 170", heading="32 38 60", place="58 66 92", alarm="64 34 0", dimmed="112 118 138",
    window="255 255 255", face="242 244 249", highlight="169 188 230")

SCHEMES = {"blue": BLUE, "homestead": HOMESTEAD, "metallic": METALLIC}
