% The deck with every feature passes the schema and compatibility checks, and LibreOffice shows
% every slide with its texts.
[deck, texts, nSlides] = every_feature_deck (pwd);
check_deck (deck);
[noOffice, ~] = system ('command -v soffice && command -v pdftotext && command -v pdfinfo');
if noOffice == 0 && isempty (getenv ('DECKFORGE_NO_OFFICE'))
  profile = ['file://' fullfile(pwd, 'lo-profile')];
  [status, output] = system (sprintf ('soffice -env:UserInstallation=%s --headless --convert-to pdf --outdir "%s" "%s" 2>&1', ...
                                      profile, pwd, deck));
  assert (status == 0, 'soffice:\n%s', output);
  pdf = strrep (deck, '.pptx', '.pdf');
  [~, info] = system (sprintf ('pdfinfo "%s"', pdf));
  pages = str2double (regexp (info, 'Pages:\s*(\d+)', 'tokens', 'once'){1});
  assert (pages, nSlides);
  assert (numel (texts), nSlides);
  for page = 1:pages
    [~, shown] = system (sprintf ('pdftotext -f %d -l %d "%s" -', page, page, pdf));
    shown = regexprep (shown, '\s+', ' ');
    for k = 1:numel (texts{page})
      assert (! isempty (strfind (shown, texts{page}{k})), 'LibreOffice does not show "%s" on page %d', ...
              texts{page}{k}, page);
    end
  end
end
