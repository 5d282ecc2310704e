% Format objects from script code: values in and out through the generated
% classes, and a refused value reaching Octave with its identifier.
b = deckforge.ppt.Bold (false);
b.Value = true;
assert (b.Value == true);
c = deckforge.ppt.FontColor ('  Red ');
assert (strcmp (c.Value, 'red'));
assert (isa (c, 'deckforge.ppt.Color') && isa (c, 'deckforge.ppt.Format'));
expect_error (@() set_property (c, 'Value', '#12345'), 'deckforge:ppt_error:invalidPropertyValue');
assert (strcmp (c.Value, 'red'));
expect_error (@() deckforge.ppt.FontSize ('0pt'), 'deckforge:ppt_error:invalidPropertyValue');
u = deckforge.ppt.Underline ('DotDotDashHeavy');
assert (strcmp (u.Style, 'dotDotDashHeavy'));
f = deckforge.ppt.FontFamily ('Arial', 'Mangal');
assert (strcmp (f.Font, 'Arial') && strcmp (f.ComplexScriptFont, 'Mangal'));
o = deckforge.ppt.TableStyleOptions ();
assert (o.FirstRow && ~o.LastRow);
o.LastRow = true;
assert (o.LastRow);
