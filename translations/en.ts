<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>TestChartTools::Widget</name>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1: %2 to %3</translation>
    </message>
    <message>
        <source>%1: at most %2 characters</source>
        <translation>%1: at most %2 characters</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>AddtoCustomColors</source>
        <translation>Add to custom colors</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Basiccolors</source>
        <translation>Basic colors</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blue:</translation>
    </message>
    <message>
        <source>BorderWidth</source>
        <translation>Width</translation>
    </message>
    <message>
        <source>Box RowColNum</source>
        <translation>Cabinets</translation>
    </message>
    <message>
        <source>BoxNumShow</source>
        <translation>Cabinets</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brightness</translation>
    </message>
    <message>
        <source>Brightness in percent</source>
        <translation>Brightness in percent</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Cannel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Center</translation>
    </message>
    <message>
        <source>Chart height in pixels</source>
        <translation>Chart height in pixels</translation>
    </message>
    <message>
        <source>Chart width in pixels</source>
        <translation>Chart width in pixels</translation>
    </message>
    <message>
        <source>Chess</source>
        <translation>Chessboard</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Color bar</source>
        <translation>Color bar</translation>
    </message>
    <message>
        <source>Color of the border</source>
        <translation>Color of the border</translation>
    </message>
    <message>
        <source>Color of the circles</source>
        <translation>Color of the circles</translation>
    </message>
    <message>
        <source>Color of the custom text</source>
        <translation>Color of the custom text</translation>
    </message>
    <message>
        <source>Color of the diagonals</source>
        <translation>Color of the diagonals</translation>
    </message>
    <message>
        <source>Color of the even cabinets</source>
        <translation>Color of the even cabinets</translation>
    </message>
    <message>
        <source>Color of the information line</source>
        <translation>Color of the information line</translation>
    </message>
    <message>
        <source>Color of the labels</source>
        <translation>Color of the labels</translation>
    </message>
    <message>
        <source>Color of the logo text</source>
        <translation>Color of the logo text</translation>
    </message>
    <message>
        <source>Color of the odd cabinets</source>
        <translation>Color of the odd cabinets</translation>
    </message>
    <message>
        <source>Colors of the color bar</source>
        <translation>Colors of the color bar</translation>
    </message>
    <message>
        <source>Columns of cabinets</source>
        <translation>Columns of cabinets</translation>
    </message>
    <message>
        <source>Combination Mode</source>
        <translation>Both</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirm</translation>
    </message>
    <message>
        <source>Ctrl and wheel, plus and minus zoom; 0 shows all, 1 pixel for pixel; drags and arrow keys move</source>
        <translation>Ctrl and wheel, plus and minus zoom; 0 shows all, 1 pixel for pixel; drags and arrow keys move</translation>
    </message>
    <message>
        <source>Custom text</source>
        <translation>Custom text</translation>
    </message>
    <message>
        <source>Customcolors</source>
        <translation>Custom colors</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>DeleteColorBar</source>
        <translation>Delete this color?</translation>
    </message>
    <message>
        <source>Display Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Display content personalization</source>
        <translation>Content</translation>
    </message>
    <message>
        <source>Display custom text</source>
        <translation>Custom text</translation>
    </message>
    <message>
        <source>Double click or Enter changes a color, Alt+Up and Alt+Down move it</source>
        <translation>Double click or Enter changes a color, Alt+Up and Alt+Down move it</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>Even</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Fit</translation>
    </message>
    <message>
        <source>From up to down increase Frome left to right increase</source>
        <translation>Rows down, columns right</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Gradient</translation>
    </message>
    <message>
        <source>Gradient between the colors</source>
        <translation>Gradient between the colors</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Green:</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Hue:</translation>
    </message>
    <message>
        <source>Layer settings</source>
        <translation>Layers</translation>
    </message>
    <message>
        <source>Left Down</source>
        <translation>Bottom left</translation>
    </message>
    <message>
        <source>Left Down Right Up</source>
        <translation>Bottom left and top right</translation>
    </message>
    <message>
        <source>Left Up</source>
        <translation>Top left</translation>
    </message>
    <message>
        <source>Left Up Right Down</source>
        <translation>Top left and bottom right</translation>
    </message>
    <message>
        <source>Letter Mode</source>
        <translation>Letters</translation>
    </message>
    <message>
        <source>Line width of the circles</source>
        <translation>Line width of the circles</translation>
    </message>
    <message>
        <source>Line width of the diagonals</source>
        <translation>Line width of the diagonals</translation>
    </message>
    <message>
        <source>Logo Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>Mode selection</source>
        <translation>Pattern</translation>
    </message>
    <message>
        <source>Next color</source>
        <translation>Next color</translation>
    </message>
    <message>
        <source>Num Mode</source>
        <translation>Numbers</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>Odd</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacity</translation>
    </message>
    <message>
        <source>Opacity of the logo in percent</source>
        <translation>Opacity of the logo in percent</translation>
    </message>
    <message>
        <source>Order of the labels</source>
        <translation>Order of the labels</translation>
    </message>
    <message>
        <source>OutBorder</source>
        <translation>Border</translation>
    </message>
    <message>
        <source>PickScreenColor</source>
        <translation>Pick from the screen</translation>
    </message>
    <message>
        <source>Picture Logo</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>Position adjustment</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Position of the labels</source>
        <translation>Position of the labels</translation>
    </message>
    <message>
        <source>Position of the logo</source>
        <translation>Position of the logo</translation>
    </message>
    <message>
        <source>Preview of the chart</source>
        <translation>Preview of the chart</translation>
    </message>
    <message>
        <source>Previous color</source>
        <translation>Previous color</translation>
    </message>
    <message>
        <source>Radius of the circles</source>
        <translation>Radius of the circles</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Red:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset to 100</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolution</translation>
    </message>
    <message>
        <source>ResolutionShow</source>
        <translation>Resolution</translation>
    </message>
    <message>
        <source>Right Down</source>
        <translation>Bottom right</translation>
    </message>
    <message>
        <source>Right Up</source>
        <translation>Top right</translation>
    </message>
    <message>
        <source>Rows of cabinets</source>
        <translation>Rows of cabinets</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sat:</translation>
    </message>
    <message>
        <source>Scale Logo</source>
        <translation>Scale</translation>
    </message>
    <message>
        <source>SelectColor</source>
        <translation>Choose a color</translation>
    </message>
    <message>
        <source>SelectImage</source>
        <translation>Choose the logo's picture</translation>
    </message>
    <message>
        <source>Serial Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Show Circle</source>
        <translation>Circles</translation>
    </message>
    <message>
        <source>Show Diagonal</source>
        <translation>Diagonals</translation>
    </message>
    <message>
        <source>Show Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Show Model</source>
        <translation>Count with</translation>
    </message>
    <message>
        <source>Show Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Show Resolution</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Show Serial Number</source>
        <translation>Labels</translation>
    </message>
    <message>
        <source>Show Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Show pixel for pixel</source>
        <translation>Show pixel for pixel</translation>
    </message>
    <message>
        <source>Show the border</source>
        <translation>Show the border</translation>
    </message>
    <message>
        <source>Show the circles</source>
        <translation>Show the circles</translation>
    </message>
    <message>
        <source>Show the custom text</source>
        <translation>Show the custom text</translation>
    </message>
    <message>
        <source>Show the diagonals</source>
        <translation>Show the diagonals</translation>
    </message>
    <message>
        <source>Show the information line</source>
        <translation>Show the information line</translation>
    </message>
    <message>
        <source>Show the labels</source>
        <translation>Show the labels</translation>
    </message>
    <message>
        <source>Show the logo</source>
        <translation>Show the logo</translation>
    </message>
    <message>
        <source>Show the whole chart</source>
        <translation>Show the whole chart</translation>
    </message>
    <message>
        <source>Sideways shift of the logo in pixels</source>
        <translation>Sideways shift of the logo in pixels</translation>
    </message>
    <message>
        <source>Size of the custom text</source>
        <translation>Size of the custom text</translation>
    </message>
    <message>
        <source>Size of the information line</source>
        <translation>Size of the information line</translation>
    </message>
    <message>
        <source>Size of the labels</source>
        <translation>Size of the labels</translation>
    </message>
    <message>
        <source>Size of the logo in percent</source>
        <translation>Size of the logo in percent</translation>
    </message>
    <message>
        <source>Size of the logo text</source>
        <translation>Size of the logo text</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>Order</translation>
    </message>
    <message>
        <source>SuggestTransparentbackgroundrecommended</source>
        <translation>Best with transparency</translation>
    </message>
    <message>
        <source>TestImage</source>
        <translation>TestImage</translation>
    </message>
    <message>
        <source>Text Input</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Text Logo</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Text Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Text of the logo</source>
        <translation>Text of the logo</translation>
    </message>
    <message>
        <source>UpLogo</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Upload your logo</source>
        <translation>Choose picture…</translation>
    </message>
    <message>
        <source>Val</source>
        <translation>Val:</translation>
    </message>
    <message>
        <source>Vertical shift of the logo in pixels</source>
        <translation>Vertical shift of the logo in pixels</translation>
    </message>
    <message>
        <source>Widget</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Width of the border</source>
        <translation>Width of the border</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom in</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom out</translation>
    </message>
    <message>
        <source>close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>fixed</source>
        <translation>Keep open</translation>
    </message>
    <message>
        <source>from down to up increase frome left to right decrease</source>
        <translation>Rows up, columns left</translation>
    </message>
    <message>
        <source>from down to up increase frome left to right increase</source>
        <translation>Rows up, columns right</translation>
    </message>
    <message>
        <source>from up to down increase frome left to right decrease</source>
        <translation>Rows down, columns left</translation>
    </message>
    <message>
        <source>small</source>
        <translation>Minimize</translation>
    </message>
</context>
<context>
    <name>ChartDesk::MainWindow</name>
    <message>
        <source>English</source>
        <extracomment>The name of this file's language, in the language itself</extracomment>
        <translation>English</translation>
    </message>
    <message>
        <source>Test charts</source>
        <translation>Test charts</translation>
    </message>
    <message>
        <source>New chart</source>
        <translation>New chart</translation>
    </message>
    <message>
        <source>Edit chart</source>
        <translation>Edit chart</translation>
    </message>
    <message>
        <source>Choose folder…</source>
        <translation>Choose folder…</translation>
    </message>
    <message>
        <source>Coded markers</source>
        <translation>Coded markers</translation>
    </message>
    <message>
        <source>The cabinets have no room for markers.</source>
        <translation>The cabinets have no room for markers.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>Charts</translation>
    </message>
    <message>
        <source>Choose the folder of the charts</source>
        <translation>Choose the folder of the charts</translation>
    </message>
    <message>
        <source>No charts here yet. Press “New chart” to make the first one.</source>
        <translation>No charts here yet. Press “New chart” to make the first one.</translation>
    </message>
    <message>
        <source>The record of this chart cannot be read:</source>
        <translation>The record of this chart cannot be read:</translation>
    </message>
    <message>
        <source>Saved:</source>
        <translation>Saved:</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Discard changes</translation>
    </message>
    <message>
        <source>Continue editing</source>
        <translation>Continue editing</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Later</translation>
    </message>
    <message>
        <source>This chart has changes that are not saved.</source>
        <translation>This chart has changes that are not saved.</translation>
    </message>
    <message>
        <source>This chart could not be saved.</source>
        <translation>This chart could not be saved.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Try again</translation>
    </message>
    <message>
        <source>This file is damaged, or no picture that can be read.</source>
        <translation>This file is damaged, or no picture that can be read.</translation>
    </message>
    <message>
        <source>The picture has %1 x %2 pixels; a logo has at most %3 x %4.</source>
        <translation>The picture has %1 x %2 pixels; a logo has at most %3 x %4.</translation>
    </message>
    <message>
        <source>Save elsewhere…</source>
        <translation>Save elsewhere…</translation>
    </message>
    <message>
        <source>You have no permission to write into “%1”.</source>
        <translation>You have no permission to write into “%1”.</translation>
    </message>
    <message>
        <source>“%1” lies on a disk that can only be read.</source>
        <translation>“%1” lies on a disk that can only be read.</translation>
    </message>
    <message>
        <source>There is no space left on the disk of “%1”.</source>
        <translation>There is no space left on the disk of “%1”.</translation>
    </message>
    <message>
        <source>“%1” cannot be a folder: a file is in its way.</source>
        <translation>“%1” cannot be a folder: a file is in its way.</translation>
    </message>
    <message>
        <source>The folder “%1” is gone.</source>
        <translation>The folder “%1” is gone.</translation>
    </message>
    <message>
        <source>An edit was not finished. Continue with it?</source>
        <translation>An edit was not finished. Continue with it?</translation>
    </message>
    <message>
        <source>%1, last changed %2</source>
        <translation>%1, last changed %2</translation>
    </message>
    <message>
        <source>The logo of this chart is missing:</source>
        <translation>The logo of this chart is missing:</translation>
    </message>
    <message>
        <source>Somebody changed this chart meanwhile; both are kept:</source>
        <translation>Somebody changed this chart meanwhile; both are kept:</translation>
    </message>
    <message>
        <source>This chart goes beyond what can be edited here:</source>
        <translation>This chart goes beyond what can be edited here:</translation>
    </message>
    <message>
        <source>There is not enough memory for this chart.</source>
        <translation>There is not enough memory for this chart.</translation>
    </message>
    <message>
        <source>Next chart</source>
        <translation>Next chart</translation>
    </message>
    <message>
        <source>Previous chart</source>
        <translation>Previous chart</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Black</translation>
    </message>
    <message>
        <source>White</source>
        <translation>White</translation>
    </message>
    <message>
        <source>Colors in turn</source>
        <translation>Colors in turn</translation>
    </message>
    <message>
        <source>Grey steps</source>
        <translation>Grey steps</translation>
    </message>
    <message>
        <source>Read a photo…</source>
        <translation>Read a photo…</translation>
    </message>
    <message>
        <source>Walk the wrong ones</source>
        <translation>Walk the wrong ones</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Reading %1…</translation>
    </message>
    <message>
        <source>Show this chart on a display first.</source>
        <translation>Show this chart on a display first.</translation>
    </message>
    <message>
        <source>This picture has no record, so its cabinets are not known.</source>
        <translation>This picture has no record, so its cabinets are not known.</translation>
    </message>
    <message>
        <source>This photo has too many pixels.</source>
        <translation>This photo has too many pixels.</translation>
    </message>
    <message>
        <source>%1: its texts are too long.</source>
        <translation>%1: its texts are too long.</translation>
    </message>
    <message>
        <source>This program was built without OpenCV, which reads photos.</source>
        <translation>This program was built without OpenCV, which reads photos.</translation>
    </message>
    <message>
        <source>Walk through the cabinets</source>
        <translation>Walk through the cabinets</translation>
    </message>
    <message>
        <source>Single cabinet</source>
        <translation>Single cabinet</translation>
    </message>
    <message>
        <source>Single row</source>
        <translation>Single row</translation>
    </message>
    <message>
        <source>Single column</source>
        <translation>Single column</translation>
    </message>
    <message>
        <source>By rows or by columns</source>
        <translation>By rows or by columns</translation>
    </message>
    <message>
        <source>Back and forth</source>
        <translation>Back and forth</translation>
    </message>
    <message>
        <source>Moving line</source>
        <translation>Moving line</translation>
    </message>
    <message>
        <source>Frame counter</source>
        <translation>Frame counter</translation>
    </message>
    <message>
        <source>Run or pause</source>
        <translation>Run or pause</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Faster</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Slower</translation>
    </message>
    <message>
        <source>This chart cannot be shown.</source>
        <translation>This chart cannot be shown.</translation>
    </message>
    <message>
        <source>Show on…</source>
        <translation>Show on…</translation>
    </message>
    <message>
        <source>Stop showing</source>
        <translation>Stop showing</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Output</translation>
    </message>
    <message>
        <source>Horizontal line at %1</source>
        <translation>Horizontal line at %1</translation>
    </message>
    <message>
        <source>Vertical line at %1</source>
        <translation>Vertical line at %1</translation>
    </message>
    <message>
        <source>Diagonal line at %1</source>
        <translation>Diagonal line at %1</translation>
    </message>
    <message>
        <source>Row %1 (%2 of %3)</source>
        <translation>Row %1 (%2 of %3)</translation>
    </message>
    <message>
        <source>Column %1 (%2 of %3)</source>
        <translation>Column %1 (%2 of %3)</translation>
    </message>
    <message>
        <source>Cabinet %1 (%2 of %3)</source>
        <translation>Cabinet %1 (%2 of %3)</translation>
    </message>
    <message>
        <source>A chart is shown.</source>
        <translation>A chart is shown.</translation>
    </message>
    <message>
        <source>unplugged</source>
        <translation>unplugged</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1 left</translation>
    </message>
    <message>
        <source>%1 above</source>
        <translation>%1 above</translation>
    </message>
    <message>
        <source>%1 right</source>
        <translation>%1 right</translation>
    </message>
    <message>
        <source>%1 below</source>
        <translation>%1 below</translation>
    </message>
    <message>
        <source>The chart has %1 pixels, the display %2.</source>
        <translation>The chart has %1 pixels, the display %2.</translation>
    </message>
    <message>
        <source>Nothing of the chart is on the display.</source>
        <translation>Nothing of the chart is on the display.</translation>
    </message>
    <message>
        <source>Pixels cut off: %1.</source>
        <translation>Pixels cut off: %1.</translation>
    </message>
    <message>
        <source>Pixels that stay black: %1.</source>
        <translation>Pixels that stay black: %1.</translation>
    </message>
    <message>
        <source>Color %1, %2, %3</source>
        <translation>Color %1, %2, %3</translation>
    </message>
    <message>
        <source>%1 x %2 pixels, scaled to %3 %</source>
        <translation>%1 x %2 pixels, scaled to %3 %</translation>
    </message>
    <message>
        <source>Pixels from the left of the display</source>
        <translation>Pixels from the left of the display</translation>
    </message>
    <message>
        <source>Pixels from the top of the display</source>
        <translation>Pixels from the top of the display</translation>
    </message>
    <message>
        <source>The displays of this desktop</source>
        <translation>The displays of this desktop</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Show</translation>
    </message>
    <message>
        <source>Number the displays</source>
        <translation>Number the displays</translation>
    </message>
    <message>
        <source>The chart fills the display exactly.</source>
        <translation>The chart fills the display exactly.</translation>
    </message>
    <message>
        <source>%1 pixels a frame</source>
        <translation>%1 pixels a frame</translation>
    </message>
    <message>
        <source>%1 steps a minute</source>
        <translation>%1 steps a minute</translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>Frame %1</translation>
    </message>
    <message>
        <source>New from…</source>
        <translation>New from…</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicate</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Rename…</translation>
    </message>
    <message>
        <source>Tags…</source>
        <translation>Tags…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Export…</translation>
    </message>
    <message>
        <source>Copy image</source>
        <translation>Copy image</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Open folder</translation>
    </message>
    <message>
        <source>There is no file or folder “%1”.</source>
        <translation>There is no file or folder “%1”.</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Chart</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>This chart could not be deleted.</source>
        <translation>This chart could not be deleted.</translation>
    </message>
    <message>
        <source>Tags, with commas between:</source>
        <translation>Tags, with commas between:</translation>
    </message>
    <message>
        <source>That could not be done.</source>
        <translation>That could not be done.</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>The wall</source>
        <translation>The wall</translation>
    </message>
    <message>
        <source>What it shows</source>
        <translation>What it shows</translation>
    </message>
    <message>
        <source>“%1” cannot be the name of a file.</source>
        <translation>“%1” cannot be the name of a file.</translation>
    </message>
    <message>
        <source>There is a chart called “%1” already.</source>
        <translation>There is a chart called “%1” already.</translation>
    </message>
    <message>
        <source>Deleted: %1</source>
        <translation>Deleted: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Brings the chart back, within ten seconds</source>
        <translation>Brings the chart back, within ten seconds</translation>
    </message>
    <message>
        <source>Search name, date, size or tag</source>
        <translation>Search name, date, size or tag</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Newest first</translation>
    </message>
    <message>
        <source>Oldest first</source>
        <translation>Oldest first</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>By name</translation>
    </message>
    <message>
        <source>Order of the charts</source>
        <translation>Order of the charts</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Keyboard shortcuts</translation>
    </message>
    <message>
        <source>Size by one pixel</source>
        <translation>Size by one pixel</translation>
    </message>
    <message>
        <source>Size by ten pixels</source>
        <translation>Size by ten pixels</translation>
    </message>
    <message>
        <source>Next cabinet</source>
        <translation>Next cabinet</translation>
    </message>
    <message>
        <source>Extend the selection</source>
        <translation>Extend the selection</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom in</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom out</translation>
    </message>
    <message>
        <source>Jump to a chart on the output</source>
        <translation>Jump to a chart on the output</translation>
    </message>
    <message>
        <source>Leave the output</source>
        <translation>Leave the output</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Copy diagnostics</source>
        <translation>Copy diagnostics</translation>
    </message>
    <message>
        <source>The next start has this theme.</source>
        <translation>The next start has this theme.</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Theme</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>Recent folders</source>
        <translation>Recent folders</translation>
    </message>
    <message>
        <source>Taken in:</source>
        <translation>Taken in:</translation>
    </message>
    <message>
        <source>Taken in, with its chart:</source>
        <translation>Taken in, with its chart:</translation>
    </message>
    <message>
        <source>Taken in, with its walls:</source>
        <translation>Taken in, with its walls:</translation>
    </message>
    <message>
        <source>Two clicks edit a chart</source>
        <translation>Two clicks edit a chart</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grey</translation>
    </message>
    <message>
        <source>8 greys</source>
        <translation>8 greys</translation>
    </message>
    <message>
        <source>16 greys</source>
        <translation>16 greys</translation>
    </message>
    <message>
        <source>Grey ramp</source>
        <translation>Grey ramp</translation>
    </message>
    <message>
        <source>Color bars</source>
        <translation>Color bars</translation>
    </message>
    <message>
        <source>Chessboard</source>
        <translation>Chessboard</translation>
    </message>
    <message>
        <source>Numbers from top left</source>
        <translation>Numbers from top left</translation>
    </message>
    <message>
        <source>Numbers from top right</source>
        <translation>Numbers from top right</translation>
    </message>
    <message>
        <source>Numbers from bottom left</source>
        <translation>Numbers from bottom left</translation>
    </message>
    <message>
        <source>Numbers from bottom right</source>
        <translation>Numbers from bottom right</translation>
    </message>
    <message>
        <source>%1 x %2 pixels, %3 x %4 cabinets</source>
        <translation>%1 x %2 pixels, %3 x %4 cabinets</translation>
    </message>
    <message>
        <source>This wall cannot be read:</source>
        <translation>This wall cannot be read:</translation>
    </message>
    <message>
        <source>The wall could not be saved:</source>
        <translation>The wall could not be saved:</translation>
    </message>
    <message>
        <source>New wall</source>
        <translation>New wall</translation>
    </message>
    <message>
        <source>Remove or restore</source>
        <translation>Remove or restore</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Turn</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Draw data cable</source>
        <translation>Draw data cable</translation>
    </message>
    <message>
        <source>Draw power cable</source>
        <translation>Draw power cable</translation>
    </message>
    <message>
        <source>Wall</source>
        <translation>Wall</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columns</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Rows</translation>
    </message>
    <message>
        <source>Selected cabinets</source>
        <translation>Selected cabinets</translation>
    </message>
    <message>
        <source>Width of the columns</source>
        <translation>Width of the columns</translation>
    </message>
    <message>
        <source>Height of the rows</source>
        <translation>Height of the rows</translation>
    </message>
    <message>
        <source>Name of the cabinet</source>
        <translation>Name of the cabinet</translation>
    </message>
    <message>
        <source>No cabinet here</source>
        <translation>No cabinet here</translation>
    </message>
    <message>
        <source>Begins at</source>
        <translation>Begins at</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Top left</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Top right</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Bottom left</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Bottom right</translation>
    </message>
    <message>
        <source>Goes along</source>
        <translation>Goes along</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Pattern</translation>
    </message>
    <message>
        <source>One way</source>
        <translation>One way</translation>
    </message>
    <message>
        <source>Each by itself</source>
        <translation>Each by itself</translation>
    </message>
    <message>
        <source>Data cables</source>
        <translation>Data cables</translation>
    </message>
    <message>
        <source>Pixels of a port</source>
        <translation>Pixels of a port</translation>
    </message>
    <message>
        <source>Bits of a color</source>
        <translation>Bits of a color</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>Frames per second</translation>
    </message>
    <message>
        <source>Backup ports</source>
        <translation>Backup ports</translation>
    </message>
    <message>
        <source>Power cables</source>
        <translation>Power cables</translation>
    </message>
    <message>
        <source>Watts of a cabinet</source>
        <translation>Watts of a cabinet</translation>
    </message>
    <message>
        <source>Watts of a circuit</source>
        <translation>Watts of a circuit</translation>
    </message>
    <message>
        <source>Drawn over the chart</source>
        <translation>Drawn over the chart</translation>
    </message>
    <message>
        <source>Black where no cabinet is</source>
        <translation>Black where no cabinet is</translation>
    </message>
    <message>
        <source>Outlines</source>
        <translation>Outlines</translation>
    </message>
    <message>
        <source>Frames of one pixel</source>
        <translation>Frames of one pixel</translation>
    </message>
    <message>
        <source>Names of cabinets</source>
        <translation>Names of cabinets</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Coordinates</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>Whole wall</source>
        <translation>Whole wall</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>Cables by the pattern</source>
        <translation>Cables by the pattern</translation>
    </message>
    <message>
        <source>Arrows change the size by one pixel, with Shift by ten</source>
        <translation>Arrows change the size by one pixel, with Shift by ten</translation>
    </message>
    <message>
        <source>Edit wall</source>
        <translation>Edit wall</translation>
    </message>
    <message>
        <source>Save the changes of this wall?</source>
        <translation>Save the changes of this wall?</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 and %2</translation>
    </message>
    <message>
        <source>%1 shows what belongs to %2</source>
        <translation>%1 shows what belongs to %2</translation>
    </message>
    <message>
        <source>%1 shows what belongs to %2, turned by %3 degrees</source>
        <translation>%1 shows what belongs to %2, turned by %3 degrees</translation>
    </message>
    <message>
        <source>%1 is mirrored top to bottom</source>
        <translation>%1 is mirrored top to bottom</translation>
    </message>
    <message>
        <source>%1 is mirrored left to right</source>
        <translation>%1 is mirrored left to right</translation>
    </message>
    <message>
        <source>%1 is mirrored left to right, turned by %2 degrees</source>
        <translation>%1 is mirrored left to right, turned by %2 degrees</translation>
    </message>
    <message>
        <source>%1 is dark</source>
        <translation>%1 is dark</translation>
    </message>
    <message>
        <source>%1 shows nothing but one colour</source>
        <translation>%1 shows nothing but one colour</translation>
    </message>
    <message>
        <source>%1 shows something else</source>
        <translation>%1 shows something else</translation>
    </message>
    <message>
        <source>%1 is too dark</source>
        <translation>%1 is too dark</translation>
    </message>
    <message>
        <source>%1 is too bright</source>
        <translation>%1 is too bright</translation>
    </message>
    <message>
        <source>%1 shows wrong colours</source>
        <translation>%1 shows wrong colours</translation>
    </message>
    <message>
        <source>%1 is hidden</source>
        <translation>%1 is hidden</translation>
    </message>
    <message>
        <source>%1 could not be judged</source>
        <translation>%1 could not be judged</translation>
    </message>
    <message>
        <source>%1 row</source>
        <translation>%1 row</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 rows</translation>
    </message>
    <message>
        <source>%1 column</source>
        <translation>%1 column</translation>
    </message>
    <message>
        <source>%1 columns</source>
        <translation>%1 columns</translation>
    </message>
    <message>
        <source>not sure which cabinet is which: this chart looks the same turned by 180 degrees; give it labels</source>
        <translation>Not sure which cabinet is which: this chart looks the same turned by 180 degrees; give it labels</translation>
    </message>
    <message>
        <source>not sure which cabinet is which: this chart looks the same shifted by %1; give it labels</source>
        <translation>Not sure which cabinet is which: this chart looks the same shifted by %1; give it labels</translation>
    </message>
    <message>
        <source>there is no picture to read</source>
        <translation>There is no picture to read</translation>
    </message>
    <message>
        <source>the chart was not found in the picture</source>
        <translation>The chart was not found in the picture</translation>
    </message>
    <message>
        <source>the chart was not found in time</source>
        <translation>The chart was not found in time</translation>
    </message>
    <message>
        <source>%1 chart pixel is missing at the left edge</source>
        <translation>%1 chart pixel is missing at the left edge</translation>
    </message>
    <message>
        <source>%1 chart pixel is missing at the top edge</source>
        <translation>%1 chart pixel is missing at the top edge</translation>
    </message>
    <message>
        <source>%1 chart pixel is missing at the right edge</source>
        <translation>%1 chart pixel is missing at the right edge</translation>
    </message>
    <message>
        <source>%1 chart pixel is missing at the bottom edge</source>
        <translation>%1 chart pixel is missing at the bottom edge</translation>
    </message>
    <message>
        <source>%1 chart pixels are missing at the left edge</source>
        <translation>%1 chart pixels are missing at the left edge</translation>
    </message>
    <message>
        <source>%1 chart pixels are missing at the top edge</source>
        <translation>%1 chart pixels are missing at the top edge</translation>
    </message>
    <message>
        <source>%1 chart pixels are missing at the right edge</source>
        <translation>%1 chart pixels are missing at the right edge</translation>
    </message>
    <message>
        <source>%1 chart pixels are missing at the bottom edge</source>
        <translation>%1 chart pixels are missing at the bottom edge</translation>
    </message>
    <message>
        <source>%1 is turned by %2 degrees</source>
        <translation>%1 is turned by %2 degrees</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 right chart pixels</source>
        <translation>%1 is shifted by %2 right chart pixels</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 left chart pixels</source>
        <translation>%1 is shifted by %2 left chart pixels</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 down chart pixels</source>
        <translation>%1 is shifted by %2 down chart pixels</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 up chart pixels</source>
        <translation>%1 is shifted by %2 up chart pixels</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 right and %3 down chart pixels</source>
        <translation>%1 is shifted by %2 right and %3 down chart pixels</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 right and %3 up chart pixels</source>
        <translation>%1 is shifted by %2 right and %3 up chart pixels</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 left and %3 down chart pixels</source>
        <translation>%1 is shifted by %2 left and %3 down chart pixels</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 left and %3 up chart pixels</source>
        <translation>%1 is shifted by %2 left and %3 up chart pixels</translation>
    </message>
    <message>
        <source>the whole chart is mirrored left to right</source>
        <translation>The whole chart is mirrored left to right</translation>
    </message>
    <message>
        <source>the whole chart is turned by %1 degrees</source>
        <translation>The whole chart is turned by %1 degrees</translation>
    </message>
    <message>
        <source>%1 and %2 are swapped</source>
        <translation>%1 and %2 are swapped</translation>
    </message>
    <message>
        <source>hidden: %1</source>
        <translation>Hidden: %1</translation>
    </message>
    <message>
        <source>not sure about: %1</source>
        <translation>Not sure about: %1</translation>
    </message>
    <message>
        <source>nothing wrong was seen</source>
        <translation>Nothing wrong was seen</translation>
    </message>
    <message>
        <source>Whole chart</source>
        <translation>Whole chart</translation>
    </message>
    <message>
        <source>Pixel for pixel</source>
        <translation>Pixel for pixel</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
</context>
</TS>
