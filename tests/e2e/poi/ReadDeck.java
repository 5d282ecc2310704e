// Reads a .pptx with Apache POI and prints what another reader sees in it:
// the slide count, then one line per paragraph of every shape, in slide and
// shape order, groups walked into and table cells row by row, and one line
// per picture with the content type of its image, and one line per chart
// series with its values.
//
//   java ReadDeck deck.pptx
//
// Output lines:
//   slides: <count>
//   <slide> <shape name>: <paragraph text>
//   <slide> <table name> [<row>,<col>]: <paragraph text>
//   <slide> <picture name>: picture <content type>
//   <slide> chart <n> series <k>: <value>, <value>, ...
// A deck that POI can't open ends the program with status 1.
import java.io.FileInputStream;
import java.io.InputStream;
import java.util.List;

import org.apache.poi.ooxml.POIXMLDocumentPart;
import org.apache.poi.xddf.usermodel.chart.XDDFChartData;
import org.apache.poi.xddf.usermodel.chart.XDDFNumericalDataSource;
import org.apache.poi.xslf.usermodel.XSLFChart;

import org.apache.poi.xslf.usermodel.XMLSlideShow;
import org.apache.poi.xslf.usermodel.XSLFGroupShape;
import org.apache.poi.xslf.usermodel.XSLFPictureData;
import org.apache.poi.xslf.usermodel.XSLFPictureShape;
import org.apache.poi.xslf.usermodel.XSLFShape;
import org.apache.poi.xslf.usermodel.XSLFSlide;
import org.apache.poi.xslf.usermodel.XSLFTable;
import org.apache.poi.xslf.usermodel.XSLFTableCell;
import org.apache.poi.xslf.usermodel.XSLFTableRow;
import org.apache.poi.xslf.usermodel.XSLFTextParagraph;
import org.apache.poi.xslf.usermodel.XSLFTextShape;

public final class ReadDeck {
    private ReadDeck() {}

    public static void main(String[] args) throws Exception {
        if (args.length != 1) {
            System.err.println("usage: java ReadDeck deck.pptx");
            System.exit(2);
        }
        try (InputStream in = new FileInputStream(args[0]); XMLSlideShow deck = new XMLSlideShow(in)) {
            List<XSLFSlide> slides = deck.getSlides();
            System.out.println("slides: " + slides.size());
            int number = 0;
            for (XSLFSlide slide : slides) {
                ++number;
                for (XSLFShape shape : slide.getShapes()) print(number, shape);
                int chart = 0;
                for (POIXMLDocumentPart part : slide.getRelations())
                    if (part instanceof XSLFChart) charts(number, ++chart, (XSLFChart) part);
            }
        } catch (Exception e) {
            System.err.println("POI can't read " + args[0] + ": " + e);
            System.exit(1);
        }
    }

    private static void print(int slide, XSLFShape shape) {
        if (shape instanceof XSLFGroupShape) {
            for (XSLFShape member : ((XSLFGroupShape) shape).getShapes()) print(slide, member);
        } else if (shape instanceof XSLFTable) {
            int row = 0;
            for (XSLFTableRow cells : ((XSLFTable) shape).getRows()) {
                ++row;
                int col = 0;
                for (XSLFTableCell cell : cells.getCells()) {
                    ++col;
                    paragraphs(slide + " " + shape.getShapeName() + " [" + row + "," + col + "]", cell);
                }
            }
        } else if (shape instanceof XSLFPictureShape) {
            XSLFPictureData image = ((XSLFPictureShape) shape).getPictureData();
            System.out.println(slide + " " + shape.getShapeName() + ": picture "
                               + (image == null ? "without image" : image.getContentType()));
        } else if (shape instanceof XSLFTextShape) {
            paragraphs(slide + " " + shape.getShapeName(), (XSLFTextShape) shape);
        }
    }

    private static void charts(int slide, int number, XSLFChart chart) {
        int index = 0;
        for (XDDFChartData data : chart.getChartSeries()) {
            for (XDDFChartData.Series series : data.getSeries()) {
                XDDFNumericalDataSource<? extends Number> values = series.getValuesData();
                StringBuilder line = new StringBuilder();
                // This POI takes the n-th cached point for index n, so a series
                // with a gap (a point left out of the cache) reads short; what
                // it can't reach shows as "?".
                for (int i = 0; i < values.getPointCount(); ++i) {
                    String text;
                    try {
                        Number value = values.getPointAt(i);
                        text = value == null ? "none" : value.toString();
                    } catch (IndexOutOfBoundsException e) {
                        text = "?";
                    }
                    line.append(i == 0 ? "" : ", ").append(text);
                }
                System.out.println(slide + " chart " + number + " series " + (++index) + ": " + line);
            }
        }
    }

    private static void paragraphs(String where, XSLFTextShape text) {
        for (XSLFTextParagraph p : text.getTextParagraphs()) {
            // A line break inside a paragraph would split the output line.
            System.out.println(where + ": " + p.getText().replace('\n', ' ').replace('\r', ' ').replace('\u000b', ' '));
        }
    }
}
