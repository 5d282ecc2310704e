// Reads what deck editing changes with Apache POI: the slides in order by
// their titles, each slide's speaker notes, and the core title and author.
//
//   java ReadDeckEdits deck.pptx
//
// Output lines:
//   slides: <count>
//   <slide> title: <title, or nothing>
//   <slide> notes: <notes paragraphs joined by " | ", or nothing>
//   core title: <title>
//   core author: <author>
// A deck that POI can't open ends the program with status 1.
import java.io.FileInputStream;
import java.io.InputStream;
import java.util.ArrayList;
import java.util.List;

import org.apache.poi.sl.usermodel.Placeholder;
import org.apache.poi.xslf.usermodel.XMLSlideShow;
import org.apache.poi.xslf.usermodel.XSLFNotes;
import org.apache.poi.xslf.usermodel.XSLFShape;
import org.apache.poi.xslf.usermodel.XSLFSlide;
import org.apache.poi.xslf.usermodel.XSLFTextParagraph;
import org.apache.poi.xslf.usermodel.XSLFTextShape;

public final class ReadDeckEdits {
    private ReadDeckEdits() {}

    public static void main(String[] args) throws Exception {
        if (args.length != 1) {
            System.err.println("usage: java ReadDeckEdits deck.pptx");
            System.exit(2);
        }
        try (InputStream in = new FileInputStream(args[0]); XMLSlideShow deck = new XMLSlideShow(in)) {
            List<XSLFSlide> slides = deck.getSlides();
            System.out.println("slides: " + slides.size());
            int number = 0;
            for (XSLFSlide slide : slides) {
                ++number;
                String title = slide.getTitle();
                System.out.println(number + " title: " + (title == null ? "" : title));
                System.out.println(number + " notes: " + notesText(slide.getNotes()));
            }
            System.out.println("core title: " + deck.getProperties().getCoreProperties().getTitle());
            System.out.println("core author: " + deck.getProperties().getCoreProperties().getCreator());
        } catch (Exception e) {
            System.err.println("POI can't read " + args[0] + ": " + e);
            System.exit(1);
        }
    }

    // The paragraphs of the notes' body placeholder.
    private static String notesText(XSLFNotes notes) {
        if (notes == null) return "";
        List<String> paragraphs = new ArrayList<>();
        for (XSLFShape shape : notes.getShapes()) {
            if (!(shape instanceof XSLFTextShape)) continue;
            XSLFTextShape text = (XSLFTextShape) shape;
            if (text.getTextType() != Placeholder.BODY) continue;
            for (XSLFTextParagraph paragraph : text.getTextParagraphs()) paragraphs.add(paragraph.getText());
        }
        if (paragraphs.size() == 1 && paragraphs.get(0).isEmpty()) return "";
        return String.join(" | ", paragraphs);
    }
}
