<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>TestChartTools::Widget</name>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1: de %2 a %3</translation>
    </message>
    <message>
        <source>%1: at most %2 characters</source>
        <translation>%1: %2 caracteres como máximo</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>AddtoCustomColors</source>
        <translation>Añadir a los colores propios</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Basiccolors</source>
        <translation>Colores básicos</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul:</translation>
    </message>
    <message>
        <source>BorderWidth</source>
        <translation>Grosor</translation>
    </message>
    <message>
        <source>Box RowColNum</source>
        <translation>Gabinetes</translation>
    </message>
    <message>
        <source>BoxNumShow</source>
        <translation>Gabinetes</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Brightness in percent</source>
        <translation>Brillo en porcentaje</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anular</translation>
    </message>
    <message>
        <source>Cannel</source>
        <translation>Anular</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Chart height in pixels</source>
        <translation>Altura de la carta en píxeles</translation>
    </message>
    <message>
        <source>Chart width in pixels</source>
        <translation>Anchura de la carta en píxeles</translation>
    </message>
    <message>
        <source>Chess</source>
        <translation>Damero</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Radio</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Color bar</source>
        <translation>Barras</translation>
    </message>
    <message>
        <source>Color of the border</source>
        <translation>Color del borde</translation>
    </message>
    <message>
        <source>Color of the circles</source>
        <translation>Color de los círculos</translation>
    </message>
    <message>
        <source>Color of the custom text</source>
        <translation>Color del texto propio</translation>
    </message>
    <message>
        <source>Color of the diagonals</source>
        <translation>Color de las diagonales</translation>
    </message>
    <message>
        <source>Color of the even cabinets</source>
        <translation>Color de los gabinetes pares</translation>
    </message>
    <message>
        <source>Color of the information line</source>
        <translation>Color de la línea de información</translation>
    </message>
    <message>
        <source>Color of the labels</source>
        <translation>Color de las etiquetas</translation>
    </message>
    <message>
        <source>Color of the logo text</source>
        <translation>Color del texto del logo</translation>
    </message>
    <message>
        <source>Color of the odd cabinets</source>
        <translation>Color de los gabinetes impares</translation>
    </message>
    <message>
        <source>Colors of the color bar</source>
        <translation>Colores de la barra</translation>
    </message>
    <message>
        <source>Columns of cabinets</source>
        <translation>Columnas de gabinetes</translation>
    </message>
    <message>
        <source>Combination Mode</source>
        <translation>Ambos</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Ctrl and wheel, plus and minus zoom; 0 shows all, 1 pixel for pixel; drags and arrow keys move</source>
        <translation>Ctrl y la rueda, más y menos amplían y reducen; 0 muestra todo, 1 píxel a píxel; arrastrar y las flechas mueven</translation>
    </message>
    <message>
        <source>Custom text</source>
        <translation>Texto propio</translation>
    </message>
    <message>
        <source>Customcolors</source>
        <translation>Colores propios</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>DeleteColorBar</source>
        <translation>¿Borrar este color?</translation>
    </message>
    <message>
        <source>Display Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Display content personalization</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>Display custom text</source>
        <translation>Texto propio</translation>
    </message>
    <message>
        <source>Double click or Enter changes a color, Alt+Up and Alt+Down move it</source>
        <translation>Doble clic o Intro cambia un color, Alt+Arriba y Alt+Abajo lo mueven</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>Par</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>From up to down increase Frome left to right increase</source>
        <translation>Hacia abajo, a la derecha</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Gradiente</translation>
    </message>
    <message>
        <source>Gradient between the colors</source>
        <translation>Degradado entre los colores</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde:</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Tono:</translation>
    </message>
    <message>
        <source>Layer settings</source>
        <translation>Capas</translation>
    </message>
    <message>
        <source>Left Down</source>
        <translation>Abajo izq.</translation>
    </message>
    <message>
        <source>Left Down Right Up</source>
        <translation>Abajo izq. y arriba der.</translation>
    </message>
    <message>
        <source>Left Up</source>
        <translation>Arriba izq.</translation>
    </message>
    <message>
        <source>Left Up Right Down</source>
        <translation>Arriba izq. y abajo der.</translation>
    </message>
    <message>
        <source>Letter Mode</source>
        <translation>Letras</translation>
    </message>
    <message>
        <source>Line width of the circles</source>
        <translation>Grosor de línea de los círculos</translation>
    </message>
    <message>
        <source>Line width of the diagonals</source>
        <translation>Grosor de línea de las diagonales</translation>
    </message>
    <message>
        <source>Logo Style</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Mode selection</source>
        <translation>Patrón</translation>
    </message>
    <message>
        <source>Next color</source>
        <translation>Color siguiente</translation>
    </message>
    <message>
        <source>Num Mode</source>
        <translation>Números</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>Impar</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>Opacity of the logo in percent</source>
        <translation>Opacidad del logo en porcentaje</translation>
    </message>
    <message>
        <source>Order of the labels</source>
        <translation>Orden de las etiquetas</translation>
    </message>
    <message>
        <source>OutBorder</source>
        <translation>Borde</translation>
    </message>
    <message>
        <source>PickScreenColor</source>
        <translation>Tomar de la pantalla</translation>
    </message>
    <message>
        <source>Picture Logo</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Position adjustment</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Position of the labels</source>
        <translation>Posición de las etiquetas</translation>
    </message>
    <message>
        <source>Position of the logo</source>
        <translation>Posición del logo</translation>
    </message>
    <message>
        <source>Preview of the chart</source>
        <translation>Vista previa de la carta</translation>
    </message>
    <message>
        <source>Previous color</source>
        <translation>Color anterior</translation>
    </message>
    <message>
        <source>Radius of the circles</source>
        <translation>Radio de los círculos</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Volver a 100</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>ResolutionShow</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Right Down</source>
        <translation>Abajo der.</translation>
    </message>
    <message>
        <source>Right Up</source>
        <translation>Arriba der.</translation>
    </message>
    <message>
        <source>Rows of cabinets</source>
        <translation>Filas de gabinetes</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Saturación:</translation>
    </message>
    <message>
        <source>Scale Logo</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>SelectColor</source>
        <translation>Elegir un color</translation>
    </message>
    <message>
        <source>SelectImage</source>
        <translation>Elegir la imagen del logo</translation>
    </message>
    <message>
        <source>Serial Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Show Circle</source>
        <translation>Círculos</translation>
    </message>
    <message>
        <source>Show Diagonal</source>
        <translation>Diagonales</translation>
    </message>
    <message>
        <source>Show Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Show Model</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Show Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Show Resolution</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Show Serial Number</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Show Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Show pixel for pixel</source>
        <translation>Mostrar píxel a píxel</translation>
    </message>
    <message>
        <source>Show the border</source>
        <translation>Mostrar el borde</translation>
    </message>
    <message>
        <source>Show the circles</source>
        <translation>Mostrar los círculos</translation>
    </message>
    <message>
        <source>Show the custom text</source>
        <translation>Mostrar el texto propio</translation>
    </message>
    <message>
        <source>Show the diagonals</source>
        <translation>Mostrar las diagonales</translation>
    </message>
    <message>
        <source>Show the information line</source>
        <translation>Mostrar la línea de información</translation>
    </message>
    <message>
        <source>Show the labels</source>
        <translation>Mostrar las etiquetas</translation>
    </message>
    <message>
        <source>Show the logo</source>
        <translation>Mostrar el logo</translation>
    </message>
    <message>
        <source>Show the whole chart</source>
        <translation>Mostrar la carta completa</translation>
    </message>
    <message>
        <source>Sideways shift of the logo in pixels</source>
        <translation>Desplazamiento lateral del logo en píxeles</translation>
    </message>
    <message>
        <source>Size of the custom text</source>
        <translation>Tamaño del texto propio</translation>
    </message>
    <message>
        <source>Size of the information line</source>
        <translation>Tamaño de la línea de información</translation>
    </message>
    <message>
        <source>Size of the labels</source>
        <translation>Tamaño de las etiquetas</translation>
    </message>
    <message>
        <source>Size of the logo in percent</source>
        <translation>Tamaño del logo en porcentaje</translation>
    </message>
    <message>
        <source>Size of the logo text</source>
        <translation>Tamaño del texto del logo</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>Sentido</translation>
    </message>
    <message>
        <source>SuggestTransparentbackgroundrecommended</source>
        <translation>Mejor con transparencia</translation>
    </message>
    <message>
        <source>TestImage</source>
        <translation>CartaDeAjuste</translation>
    </message>
    <message>
        <source>Text Input</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Text Logo</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Text Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Text of the logo</source>
        <translation>Texto del logo</translation>
    </message>
    <message>
        <source>UpLogo</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Upload your logo</source>
        <translation>Elegir imagen…</translation>
    </message>
    <message>
        <source>Val</source>
        <translation>Valor:</translation>
    </message>
    <message>
        <source>Vertical shift of the logo in pixels</source>
        <translation>Desplazamiento vertical del logo en píxeles</translation>
    </message>
    <message>
        <source>Widget</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Width of the border</source>
        <translation>Grosor del borde</translation>
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
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Reducir</translation>
    </message>
    <message>
        <source>close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>fixed</source>
        <translation>Mantener abierto</translation>
    </message>
    <message>
        <source>from down to up increase frome left to right decrease</source>
        <translation>Hacia arriba, a la izquierda</translation>
    </message>
    <message>
        <source>from down to up increase frome left to right increase</source>
        <translation>Hacia arriba, a la derecha</translation>
    </message>
    <message>
        <source>from up to down increase frome left to right decrease</source>
        <translation>Hacia abajo, a la izquierda</translation>
    </message>
    <message>
        <source>small</source>
        <translation>Minimizar</translation>
    </message>
</context>
<context>
    <name>ChartDesk::MainWindow</name>
    <message>
        <source>English</source>
        <extracomment>The name of this file's language, in the language itself</extracomment>
        <translation>Español</translation>
    </message>
    <message>
        <source>Test charts</source>
        <translation>Cartas de ajuste</translation>
    </message>
    <message>
        <source>New chart</source>
        <translation>Nueva carta</translation>
    </message>
    <message>
        <source>Edit chart</source>
        <translation>Editar carta</translation>
    </message>
    <message>
        <source>Choose folder…</source>
        <translation>Elegir carpeta…</translation>
    </message>
    <message>
        <source>Coded markers</source>
        <translation>Marcas codificadas</translation>
    </message>
    <message>
        <source>The cabinets have no room for markers.</source>
        <translation>Las marcas no caben en los gabinetes.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>Cartas</translation>
    </message>
    <message>
        <source>Choose the folder of the charts</source>
        <translation>Elegir la carpeta de las cartas</translation>
    </message>
    <message>
        <source>No charts here yet. Press “New chart” to make the first one.</source>
        <translation>Aún no hay cartas de ajuste. Pulse «Nueva carta» para crear la primera.</translation>
    </message>
    <message>
        <source>The record of this chart cannot be read:</source>
        <translation>No se pueden leer los datos de esta carta:</translation>
    </message>
    <message>
        <source>Saved:</source>
        <translation>Guardado:</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Descartar los cambios</translation>
    </message>
    <message>
        <source>Continue editing</source>
        <translation>Seguir editando</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>This chart has changes that are not saved.</source>
        <translation>Esta carta tiene cambios sin guardar.</translation>
    </message>
    <message>
        <source>This chart could not be saved.</source>
        <translation>No se ha podido guardar esta carta.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>This file is damaged, or no picture that can be read.</source>
        <translation>El archivo está dañado o no es una imagen legible.</translation>
    </message>
    <message>
        <source>The picture has %1 x %2 pixels; a logo has at most %3 x %4.</source>
        <translation>La imagen tiene %1 x %2 píxeles; un logotipo tiene como máximo %3 x %4.</translation>
    </message>
    <message>
        <source>Save elsewhere…</source>
        <translation>Guardar en otro lugar…</translation>
    </message>
    <message>
        <source>You have no permission to write into “%1”.</source>
        <translation>No tiene permiso para escribir en «%1».</translation>
    </message>
    <message>
        <source>“%1” lies on a disk that can only be read.</source>
        <translation>«%1» está en un disco de solo lectura.</translation>
    </message>
    <message>
        <source>There is no space left on the disk of “%1”.</source>
        <translation>No queda espacio en el disco de «%1».</translation>
    </message>
    <message>
        <source>“%1” cannot be a folder: a file is in its way.</source>
        <translation>«%1» no puede ser una carpeta: ya hay un archivo en su lugar.</translation>
    </message>
    <message>
        <source>The folder “%1” is gone.</source>
        <translation>La carpeta «%1» ya no existe.</translation>
    </message>
    <message>
        <source>An edit was not finished. Continue with it?</source>
        <translation>Una edición quedó sin terminar. ¿Continuarla?</translation>
    </message>
    <message>
        <source>%1, last changed %2</source>
        <translation>%1, última modificación: %2</translation>
    </message>
    <message>
        <source>The logo of this chart is missing:</source>
        <translation>Falta el logotipo de esta carta:</translation>
    </message>
    <message>
        <source>Somebody changed this chart meanwhile; both are kept:</source>
        <translation>Alguien ha modificado entretanto esta carta; se conservan ambas:</translation>
    </message>
    <message>
        <source>This chart goes beyond what can be edited here:</source>
        <translation>Esta carta supera lo que se puede editar aquí:</translation>
    </message>
    <message>
        <source>There is not enough memory for this chart.</source>
        <translation>No hay memoria suficiente para esta carta.</translation>
    </message>
    <message>
        <source>Next chart</source>
        <translation>Carta siguiente</translation>
    </message>
    <message>
        <source>Previous chart</source>
        <translation>Carta anterior</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Negro</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanco</translation>
    </message>
    <message>
        <source>Colors in turn</source>
        <translation>Colores por turno</translation>
    </message>
    <message>
        <source>Grey steps</source>
        <translation>Escalones de gris</translation>
    </message>
    <message>
        <source>Read a photo…</source>
        <translation>Leer una foto…</translation>
    </message>
    <message>
        <source>Walk the wrong ones</source>
        <translation>Recorrer los erróneos</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Leyendo %1…</translation>
    </message>
    <message>
        <source>Show this chart on a display first.</source>
        <translation>Muestre primero esta carta en una pantalla.</translation>
    </message>
    <message>
        <source>This picture has no record, so its cabinets are not known.</source>
        <translation>Esta imagen no tiene registro; no se conocen sus gabinetes.</translation>
    </message>
    <message>
        <source>This photo has too many pixels.</source>
        <translation>Esta foto tiene demasiados píxeles.</translation>
    </message>
    <message>
        <source>%1: its texts are too long.</source>
        <translation>%1: sus textos son demasiado largos.</translation>
    </message>
    <message>
        <source>This program was built without OpenCV, which reads photos.</source>
        <translation>Este programa se compiló sin OpenCV, que lee las fotos.</translation>
    </message>
    <message>
        <source>Walk through the cabinets</source>
        <translation>Recorrer los gabinetes</translation>
    </message>
    <message>
        <source>Single cabinet</source>
        <translation>Un solo gabinete</translation>
    </message>
    <message>
        <source>Single row</source>
        <translation>Una sola fila</translation>
    </message>
    <message>
        <source>Single column</source>
        <translation>Una sola columna</translation>
    </message>
    <message>
        <source>By rows or by columns</source>
        <translation>Por filas o por columnas</translation>
    </message>
    <message>
        <source>Back and forth</source>
        <translation>Ida y vuelta</translation>
    </message>
    <message>
        <source>Moving line</source>
        <translation>Línea en movimiento</translation>
    </message>
    <message>
        <source>Frame counter</source>
        <translation>Contador de cuadros</translation>
    </message>
    <message>
        <source>Run or pause</source>
        <translation>Iniciar o pausar</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Más rápido</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Más lento</translation>
    </message>
    <message>
        <source>This chart cannot be shown.</source>
        <translation>No se puede mostrar esta carta.</translation>
    </message>
    <message>
        <source>Show on…</source>
        <translation>Mostrar en…</translation>
    </message>
    <message>
        <source>Stop showing</source>
        <translation>Dejar de mostrar</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Horizontal line at %1</source>
        <translation>Línea horizontal en %1</translation>
    </message>
    <message>
        <source>Vertical line at %1</source>
        <translation>Línea vertical en %1</translation>
    </message>
    <message>
        <source>Diagonal line at %1</source>
        <translation>Línea diagonal en %1</translation>
    </message>
    <message>
        <source>Row %1 (%2 of %3)</source>
        <translation>Fila %1 (%2 de %3)</translation>
    </message>
    <message>
        <source>Column %1 (%2 of %3)</source>
        <translation>Columna %1 (%2 de %3)</translation>
    </message>
    <message>
        <source>Cabinet %1 (%2 of %3)</source>
        <translation>Gabinete %1 (%2 de %3)</translation>
    </message>
    <message>
        <source>A chart is shown.</source>
        <translation>Se muestra una carta.</translation>
    </message>
    <message>
        <source>unplugged</source>
        <translation>desconectada</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1 a la izquierda</translation>
    </message>
    <message>
        <source>%1 above</source>
        <translation>%1 arriba</translation>
    </message>
    <message>
        <source>%1 right</source>
        <translation>%1 a la derecha</translation>
    </message>
    <message>
        <source>%1 below</source>
        <translation>%1 abajo</translation>
    </message>
    <message>
        <source>The chart has %1 pixels, the display %2.</source>
        <translation>La carta tiene %1 píxeles; la pantalla, %2.</translation>
    </message>
    <message>
        <source>Nothing of the chart is on the display.</source>
        <translation>Nada de la carta queda en la pantalla.</translation>
    </message>
    <message>
        <source>Pixels cut off: %1.</source>
        <translation>Píxeles cortados: %1.</translation>
    </message>
    <message>
        <source>Pixels that stay black: %1.</source>
        <translation>Píxeles que quedan negros: %1.</translation>
    </message>
    <message>
        <source>Color %1, %2, %3</source>
        <translation>Color %1, %2, %3</translation>
    </message>
    <message>
        <source>%1 x %2 pixels, scaled to %3 %</source>
        <translation>%1 x %2 píxeles, escala %3 %</translation>
    </message>
    <message>
        <source>Pixels from the left of the display</source>
        <translation>Píxeles desde la izquierda de la pantalla</translation>
    </message>
    <message>
        <source>Pixels from the top of the display</source>
        <translation>Píxeles desde el borde superior de la pantalla</translation>
    </message>
    <message>
        <source>The displays of this desktop</source>
        <translation>Las pantallas de este escritorio</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Number the displays</source>
        <translation>Numerar las pantallas</translation>
    </message>
    <message>
        <source>The chart fills the display exactly.</source>
        <translation>La carta llena la pantalla exactamente.</translation>
    </message>
    <message>
        <source>%1 pixels a frame</source>
        <translation>%1 píxeles por cuadro</translation>
    </message>
    <message>
        <source>%1 steps a minute</source>
        <translation>%1 pasos por minuto</translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>Cuadro %1</translation>
    </message>
    <message>
        <source>New from…</source>
        <translation>Nueva a partir de…</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Cambiar nombre…</translation>
    </message>
    <message>
        <source>Tags…</source>
        <translation>Etiquetas…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Copy image</source>
        <translation>Copiar imagen</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>There is no file or folder “%1”.</source>
        <translation>No existe el archivo ni la carpeta «%1».</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Carta</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>This chart could not be deleted.</source>
        <translation>No se pudo eliminar esta carta.</translation>
    </message>
    <message>
        <source>Tags, with commas between:</source>
        <translation>Etiquetas, separadas por comas:</translation>
    </message>
    <message>
        <source>That could not be done.</source>
        <translation>No se pudo hacer.</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Estándar</translation>
    </message>
    <message>
        <source>The wall</source>
        <translation>La pantalla LED</translation>
    </message>
    <message>
        <source>What it shows</source>
        <translation>Lo que muestra</translation>
    </message>
    <message>
        <source>“%1” cannot be the name of a file.</source>
        <translation>«%1» no puede ser el nombre de un archivo.</translation>
    </message>
    <message>
        <source>There is a chart called “%1” already.</source>
        <translation>Ya hay una carta llamada «%1».</translation>
    </message>
    <message>
        <source>Deleted: %1</source>
        <translation>Eliminada: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Brings the chart back, within ten seconds</source>
        <translation>Recupera la carta, durante diez segundos</translation>
    </message>
    <message>
        <source>Search name, date, size or tag</source>
        <translation>Buscar nombre, fecha, tamaño o etiqueta</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Primero las más nuevas</translation>
    </message>
    <message>
        <source>Oldest first</source>
        <translation>Primero las más antiguas</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>Por nombre</translation>
    </message>
    <message>
        <source>Order of the charts</source>
        <translation>Orden de las cartas</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Size by one pixel</source>
        <translation>Tamaño en un píxel</translation>
    </message>
    <message>
        <source>Size by ten pixels</source>
        <translation>Tamaño en diez píxeles</translation>
    </message>
    <message>
        <source>Next cabinet</source>
        <translation>Gabinete siguiente</translation>
    </message>
    <message>
        <source>Extend the selection</source>
        <translation>Ampliar la selección</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Reducir</translation>
    </message>
    <message>
        <source>Jump to a chart on the output</source>
        <translation>Ir a una carta en la salida</translation>
    </message>
    <message>
        <source>Leave the output</source>
        <translation>Salir de la salida</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Copy diagnostics</source>
        <translation>Copiar diagnóstico</translation>
    </message>
    <message>
        <source>The next start has this theme.</source>
        <translation>Este tema se usará en el próximo inicio.</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Recent folders</source>
        <translation>Carpetas recientes</translation>
    </message>
    <message>
        <source>Taken in:</source>
        <translation>Incorporado:</translation>
    </message>
    <message>
        <source>Taken in, with its chart:</source>
        <translation>Incorporado con su carta:</translation>
    </message>
    <message>
        <source>Taken in, with its walls:</source>
        <translation>Incorporado con sus pantallas:</translation>
    </message>
    <message>
        <source>Two clicks edit a chart</source>
        <translation>Doble clic para editar una carta</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>8 greys</source>
        <translation>8 grises</translation>
    </message>
    <message>
        <source>16 greys</source>
        <translation>16 grises</translation>
    </message>
    <message>
        <source>Grey ramp</source>
        <translation>Degradado de gris</translation>
    </message>
    <message>
        <source>Color bars</source>
        <translation>Barras de color</translation>
    </message>
    <message>
        <source>Chessboard</source>
        <translation>Tablero de ajedrez</translation>
    </message>
    <message>
        <source>Numbers from top left</source>
        <translation>Números desde arriba a la izquierda</translation>
    </message>
    <message>
        <source>Numbers from top right</source>
        <translation>Números desde arriba a la derecha</translation>
    </message>
    <message>
        <source>Numbers from bottom left</source>
        <translation>Números desde abajo a la izquierda</translation>
    </message>
    <message>
        <source>Numbers from bottom right</source>
        <translation>Números desde abajo a la derecha</translation>
    </message>
    <message>
        <source>%1 x %2 pixels, %3 x %4 cabinets</source>
        <translation>%1 x %2 píxeles, %3 x %4 gabinetes</translation>
    </message>
    <message>
        <source>This wall cannot be read:</source>
        <translation>Esta pantalla no se puede leer:</translation>
    </message>
    <message>
        <source>The wall could not be saved:</source>
        <translation>No se pudo guardar la pantalla:</translation>
    </message>
    <message>
        <source>New wall</source>
        <translation>Nueva pantalla</translation>
    </message>
    <message>
        <source>Remove or restore</source>
        <translation>Quitar o restaurar</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Girar</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Draw data cable</source>
        <translation>Trazar cable de datos</translation>
    </message>
    <message>
        <source>Draw power cable</source>
        <translation>Trazar cable de corriente</translation>
    </message>
    <message>
        <source>Wall</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Filas</translation>
    </message>
    <message>
        <source>Selected cabinets</source>
        <translation>Gabinetes seleccionados</translation>
    </message>
    <message>
        <source>Width of the columns</source>
        <translation>Ancho de las columnas</translation>
    </message>
    <message>
        <source>Height of the rows</source>
        <translation>Alto de las filas</translation>
    </message>
    <message>
        <source>Name of the cabinet</source>
        <translation>Nombre del gabinete</translation>
    </message>
    <message>
        <source>No cabinet here</source>
        <translation>Aquí no hay gabinete</translation>
    </message>
    <message>
        <source>Begins at</source>
        <translation>Empieza</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Arriba a la izquierda</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Arriba a la derecha</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Abajo a la izquierda</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Abajo a la derecha</translation>
    </message>
    <message>
        <source>Goes along</source>
        <translation>Recorre</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Patrón</translation>
    </message>
    <message>
        <source>One way</source>
        <translation>En un sentido</translation>
    </message>
    <message>
        <source>Each by itself</source>
        <translation>Cada una por separado</translation>
    </message>
    <message>
        <source>Data cables</source>
        <translation>Cables de datos</translation>
    </message>
    <message>
        <source>Pixels of a port</source>
        <translation>Píxeles por puerto</translation>
    </message>
    <message>
        <source>Bits of a color</source>
        <translation>Bits por color</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>Cuadros por segundo</translation>
    </message>
    <message>
        <source>Backup ports</source>
        <translation>Puertos de respaldo</translation>
    </message>
    <message>
        <source>Power cables</source>
        <translation>Cables de corriente</translation>
    </message>
    <message>
        <source>Watts of a cabinet</source>
        <translation>Vatios por gabinete</translation>
    </message>
    <message>
        <source>Watts of a circuit</source>
        <translation>Vatios por circuito</translation>
    </message>
    <message>
        <source>Drawn over the chart</source>
        <translation>Sobre la carta</translation>
    </message>
    <message>
        <source>Black where no cabinet is</source>
        <translation>Negro donde no hay gabinete</translation>
    </message>
    <message>
        <source>Outlines</source>
        <translation>Contornos</translation>
    </message>
    <message>
        <source>Frames of one pixel</source>
        <translation>Marcos de un píxel</translation>
    </message>
    <message>
        <source>Names of cabinets</source>
        <translation>Nombres de los gabinetes</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Coordenadas</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Whole wall</source>
        <translation>Pantalla entera</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleccionar</translation>
    </message>
    <message>
        <source>Cables by the pattern</source>
        <translation>Cables según el patrón</translation>
    </message>
    <message>
        <source>Arrows change the size by one pixel, with Shift by ten</source>
        <translation>Las flechas cambian el tamaño en un píxel, con Mayús en diez</translation>
    </message>
    <message>
        <source>Edit wall</source>
        <translation>Editar pantalla</translation>
    </message>
    <message>
        <source>Save the changes of this wall?</source>
        <translation>¿Guardar los cambios de esta pantalla?</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>%1 shows what belongs to %2</source>
        <translation>%1 muestra lo que corresponde a %2</translation>
    </message>
    <message>
        <source>%1 shows what belongs to %2, turned by %3 degrees</source>
        <translation>%1 muestra lo que corresponde a %2, girado %3 grados</translation>
    </message>
    <message>
        <source>%1 is mirrored top to bottom</source>
        <translation>%1 está reflejado de arriba abajo</translation>
    </message>
    <message>
        <source>%1 is mirrored left to right</source>
        <translation>%1 está reflejado de izquierda a derecha</translation>
    </message>
    <message>
        <source>%1 is mirrored left to right, turned by %2 degrees</source>
        <translation>%1 está reflejado de izquierda a derecha y girado %2 grados</translation>
    </message>
    <message>
        <source>%1 is dark</source>
        <translation>%1 está apagado</translation>
    </message>
    <message>
        <source>%1 shows nothing but one colour</source>
        <translation>%1 muestra un solo color</translation>
    </message>
    <message>
        <source>%1 shows something else</source>
        <translation>%1 muestra otra cosa</translation>
    </message>
    <message>
        <source>%1 is too dark</source>
        <translation>%1 es demasiado oscuro</translation>
    </message>
    <message>
        <source>%1 is too bright</source>
        <translation>%1 es demasiado claro</translation>
    </message>
    <message>
        <source>%1 shows wrong colours</source>
        <translation>%1 muestra colores incorrectos</translation>
    </message>
    <message>
        <source>%1 is hidden</source>
        <translation>%1 está tapado</translation>
    </message>
    <message>
        <source>%1 could not be judged</source>
        <translation>%1 no se ha podido evaluar</translation>
    </message>
    <message>
        <source>%1 row</source>
        <translation>%1 fila</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 filas</translation>
    </message>
    <message>
        <source>%1 column</source>
        <translation>%1 columna</translation>
    </message>
    <message>
        <source>%1 columns</source>
        <translation>%1 columnas</translation>
    </message>
    <message>
        <source>not sure which cabinet is which: this chart looks the same turned by 180 degrees; give it labels</source>
        <translation>No es seguro cuál es cada gabinete: esta carta se ve igual girada 180 grados; añádale etiquetas</translation>
    </message>
    <message>
        <source>not sure which cabinet is which: this chart looks the same shifted by %1; give it labels</source>
        <translation>No es seguro cuál es cada gabinete: esta carta se ve igual desplazada %1; añádale etiquetas</translation>
    </message>
    <message>
        <source>there is no picture to read</source>
        <translation>No hay ninguna imagen que leer</translation>
    </message>
    <message>
        <source>the chart was not found in the picture</source>
        <translation>No se ha encontrado la carta en la imagen</translation>
    </message>
    <message>
        <source>the chart was not found in time</source>
        <translation>No se ha encontrado la carta a tiempo</translation>
    </message>
    <message>
        <source>%1 chart pixel is missing at the left edge</source>
        <translation>Falta %1 píxel de la carta en el borde izquierdo</translation>
    </message>
    <message>
        <source>%1 chart pixel is missing at the top edge</source>
        <translation>Falta %1 píxel de la carta en el borde superior</translation>
    </message>
    <message>
        <source>%1 chart pixel is missing at the right edge</source>
        <translation>Falta %1 píxel de la carta en el borde derecho</translation>
    </message>
    <message>
        <source>%1 chart pixel is missing at the bottom edge</source>
        <translation>Falta %1 píxel de la carta en el borde inferior</translation>
    </message>
    <message>
        <source>%1 chart pixels are missing at the left edge</source>
        <translation>Faltan %1 píxeles de la carta en el borde izquierdo</translation>
    </message>
    <message>
        <source>%1 chart pixels are missing at the top edge</source>
        <translation>Faltan %1 píxeles de la carta en el borde superior</translation>
    </message>
    <message>
        <source>%1 chart pixels are missing at the right edge</source>
        <translation>Faltan %1 píxeles de la carta en el borde derecho</translation>
    </message>
    <message>
        <source>%1 chart pixels are missing at the bottom edge</source>
        <translation>Faltan %1 píxeles de la carta en el borde inferior</translation>
    </message>
    <message>
        <source>%1 is turned by %2 degrees</source>
        <translation>%1 está girado %2 grados</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 right chart pixels</source>
        <translation>%1 está desplazado %2 píxeles de la carta hacia la derecha</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 left chart pixels</source>
        <translation>%1 está desplazado %2 píxeles de la carta hacia la izquierda</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 down chart pixels</source>
        <translation>%1 está desplazado %2 píxeles de la carta hacia abajo</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 up chart pixels</source>
        <translation>%1 está desplazado %2 píxeles de la carta hacia arriba</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 right and %3 down chart pixels</source>
        <translation>%1 está desplazado %2 píxeles de la carta hacia la derecha y %3 hacia abajo</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 right and %3 up chart pixels</source>
        <translation>%1 está desplazado %2 píxeles de la carta hacia la derecha y %3 hacia arriba</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 left and %3 down chart pixels</source>
        <translation>%1 está desplazado %2 píxeles de la carta hacia la izquierda y %3 hacia abajo</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 left and %3 up chart pixels</source>
        <translation>%1 está desplazado %2 píxeles de la carta hacia la izquierda y %3 hacia arriba</translation>
    </message>
    <message>
        <source>the whole chart is mirrored left to right</source>
        <translation>Toda la carta está reflejada de izquierda a derecha</translation>
    </message>
    <message>
        <source>the whole chart is turned by %1 degrees</source>
        <translation>Toda la carta está girada %1 grados</translation>
    </message>
    <message>
        <source>%1 and %2 are swapped</source>
        <translation>%1 y %2 están intercambiados</translation>
    </message>
    <message>
        <source>hidden: %1</source>
        <translation>Tapados: %1</translation>
    </message>
    <message>
        <source>not sure about: %1</source>
        <translation>Sin certeza: %1</translation>
    </message>
    <message>
        <source>nothing wrong was seen</source>
        <translation>No se ha visto nada erróneo</translation>
    </message>
    <message>
        <source>Whole chart</source>
        <translation>Carta entera</translation>
    </message>
    <message>
        <source>Pixel for pixel</source>
        <translation>Píxel a píxel</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
</context>
</TS>
